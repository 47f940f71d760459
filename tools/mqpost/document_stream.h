/// \file
/// A stream in a document, as the command line names it.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "session.h"

namespace mqp::tool {

struct StreamName {
  std::string document;
  std::string stream;
};

/// Divides "DOC::STREAM" at the last "::"; a drive letter has but one colon.
/// \throw Problem `Usage`
StreamName DivideName(const std::string& word);

/// "study.cfb > Graphs/Graph1", for headings and errors.
std::string ShowStreamName(const StreamName& name);

/// \throw Problem `FileTrouble` with the nearest names when there is no such stream
/// \throw host::DocumentError
std::vector<std::byte> ReadStream(const StreamName& name);

}  // namespace mqp::tool
