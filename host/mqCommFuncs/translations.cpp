#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "mo_file.h"
#include "string_table.h"
#include "text_table.h"
#include "utf8.h"

namespace mqp::host {
namespace {

constexpr char kContextEnd = '\x04';
constexpr std::size_t kLargestFile = std::size_t{16} * 1024 * 1024;

struct Bytes {
  std::string error;
  std::string bytes;
};

Bytes ReadWholeFile(const std::filesystem::path& file) {
  std::error_code ignored;
  const std::filesystem::file_status status = std::filesystem::status(file, ignored);
  if (!std::filesystem::exists(status)) {
    return {"the file does not exist", {}};
  }
  if (std::filesystem::is_directory(status)) {
    return {"this is a folder, not a file", {}};
  }
  std::ifstream stream(file, std::ios::binary);
  if (!stream) {
    return {"the file cannot be opened", {}};
  }
  std::string bytes;
  std::array<char, 65536> part;
  while (stream && bytes.size() <= kLargestFile) {
    stream.read(part.data(), part.size());
    bytes.append(part.data(), static_cast<std::size_t>(stream.gcount()));
  }
  if (stream.bad()) {
    return {"the file cannot be read", {}};
  }
  if (bytes.size() > kLargestFile) {
    return {"the file has more than " + std::to_string(kLargestFile) + " bytes", {}};
  }
  return {{}, std::move(bytes)};
}

std::string NameForPeople(const std::filesystem::path& file) {
  const std::u8string name = file.u8string();
  return {name.begin(), name.end()};
}

/// Whether the key is that of the built-in text as it stands today; built-in texts are ASCII.
bool IsBuiltInText(std::string_view english, UINT id) {
  const std::optional<mqTextView> text = FindBuiltInText(id);
  return text && std::ranges::equal(english, *text, {}, [](char byte) {
           return static_cast<mqChar>(static_cast<unsigned char>(byte));
         });
}

/// The translation that a message brings, or nothing when it has none for today's built-in texts.
std::optional<Translation> Translate(const MoMessage& message) {
  const std::size_t contextEnd = message.key.find(kContextEnd);
  if (contextEnd == std::string_view::npos || message.text.empty()) {
    return std::nullopt;
  }
  const std::string_view context = message.key.substr(0, contextEnd);
  Translation translation{};
  std::from_chars(context.data(), context.data() + context.size(), translation.id);
  if (context != std::to_string(translation.id) ||
      !IsBuiltInText(message.key.substr(contextEnd + 1), translation.id) ||
      !AppendUtf8(message.text, translation.text)) {
    return std::nullopt;
  }
  return translation;
}

}  // namespace

TranslationReport LoadTranslations(const std::filesystem::path& file) {
  const Bytes content = ReadWholeFile(file);
  if (!content.error.empty()) {
    return {NameForPeople(file) + ": " + content.error};
  }
  const MoFile mo = ReadMo(content.bytes);
  if (!mo.error.empty()) {
    return {NameForPeople(file) + ": " + mo.error};
  }
  std::vector<Translation> translations;
  for (const MoMessage& message : mo.messages) {
    if (std::optional<Translation> translation = Translate(message)) {
      translations.push_back(std::move(*translation));
    }
  }
  UseTranslations(translations);
  TranslationReport report;
  report.translated = static_cast<int>(translations.size());
  report.untranslated = static_cast<int>(BuiltInTexts().size()) - report.translated;
  return report;
}

}  // namespace mqp::host
