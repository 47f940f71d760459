#include "document_stream.h"

#include <storage/compound_document.h>

#include "choices.h"
#include "text.h"

namespace mqp::tool {

StreamName DivideName(const std::string& word) {
  const std::size_t colons = word.rfind("::");
  StreamName name;
  name.document = word.substr(0, colons);
  name.stream = colons == std::string::npos ? std::string() : word.substr(colons + 2);
  if (name.document.empty() || name.stream.empty()) {
    throw Problem(ExitCode::Usage,
                  "Name a document and a stream in it, joined by \"::\", as in "
                  "study.cfb::Graphs/Graph1, not " +
                      Quoted(word) + ". mqpost ls lists the streams.");
  }
  return name;
}

std::string ShowStreamName(const StreamName& name) {
  return Printable(name.document) + " > " + Printable(name.stream);
}

std::vector<std::byte> ReadStream(const StreamName& name) {
  const host::CompoundDocument document(PathOf(name.document));
  try {
    return document.ReadStream(name.stream);
  } catch (const host::DocumentError& error) {
    if (error.Problem() != host::DocumentProblem::NoStream) {
      throw;
    }
    std::vector<std::string> streams;
    for (const host::DocumentEntry& entry : document.Entries()) {
      if (!entry.isStorage) {
        streams.push_back(Printable(entry.path));
      }
    }
    throw Problem(ExitCode::FileTrouble,
                  error.what() + AskWhether(FindNearest(name.stream, streams)));
  }
}

}  // namespace mqp::tool
