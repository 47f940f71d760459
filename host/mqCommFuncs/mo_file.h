/// \file
/// The compiled message file of gettext (.mo), read without trusting it.
///
/// All integers have 32 bits, in the byte order that the first one shows:
///
///     byte  0  mark 0x950412DE
///           4  revision, the major one in the upper half: 0 or 1
///           8  number of messages
///          12  offset of the key table           a row a message: length, offset
///          16  offset of the text table          likewise
///          20  size of a hash table and
///          24  its offset                        not used here
///
/// A key is the context, byte 4, and the message in its original language; keys ascend byte by
/// byte. A zero stands behind each key and text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mqp::host {

/// A message; both views look into the bytes that were read.
struct MoMessage {
  std::string_view key;
  std::string_view text;
};

struct MoFile {
  std::string error;  ///< empty, or what is wrong and at which byte; then there are no messages
  std::vector<MoMessage> messages;
};

MoFile ReadMo(std::string_view bytes);

}  // namespace mqp::host
