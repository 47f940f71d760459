/// \file
/// The records written and read by libraries of serialisation. Each peer writes the record into a
/// buffer that it keeps and reads it from there into an object that it keeps, whose list of
/// variables is emptied before.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "plain_records.h"

namespace mqp::bench {

template <class Record>
class RecordPeer {
 public:
  virtual ~RecordPeer() = default;
  virtual void Write() = 0;
  virtual void Read() = 0;
  /// What was read last.
  [[nodiscard]] virtual Record Result() const = 0;
};

template <class Record>
struct NamedPeer {
  std::string name;
  std::unique_ptr<RecordPeer<Record>> peer;
};

/// The peers with a record to be written; the first reading comes behind the first writing.
std::vector<NamedPeer<PlainGraph>> MakePeers(const PlainGraph& record);
std::vector<NamedPeer<PlainEquation>> MakePeers(const PlainEquation& record);

}  // namespace mqp::bench
