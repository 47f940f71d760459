#include "record_view.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <set>
#include <stdexcept>
#include <utility>

#include "text.h"

namespace mqp::tool {
namespace {

std::uint64_t LoadLittleEndian(Bytes bytes) {
  std::uint64_t value = 0;
  for (std::size_t index = bytes.size(); index-- > 0;) {
    value = value << 8 | std::to_integer<std::uint64_t>(bytes[index]);
  }
  return value;
}

class DecodingFailure : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Takes values off the front of a record until one is not there.
class Decoder {
 public:
  explicit Decoder(Bytes bytes) : m_bytes(bytes) {}

  [[nodiscard]] std::size_t Position() const noexcept { return m_position; }

  /// \throw DecodingFailure what is wrong at the position
  ValueView Take(FieldType type) {
    const std::size_t begin = m_position;
    std::size_t end = begin;
    StoredValue value = Decode(type, end);
    m_position = end;
    return {begin, m_bytes.subspan(begin, end - begin), std::move(value)};
  }

 private:
  [[nodiscard]] StoredValue Decode(FieldType type, std::size_t& end) const {
    switch (type) {
      case FieldType::Integer: return TakeInteger(end);
      case FieldType::Double: return std::bit_cast<double>(LoadLittleEndian(Slice(end, 8)));
      case FieldType::String: break;
    }
    const int count = TakeInteger(end);
    if (count < 0 || count > kMaximumStringRecordLength) {
      throw DecodingFailure("the text claims " + std::to_string(count) + " code units, and 0 to " +
                            std::to_string(kMaximumStringRecordLength) + " are possible");
    }
    std::basic_string<mqChar> text;
    const Bytes units = Slice(end, 2 * static_cast<std::size_t>(count));
    for (std::size_t unit = 0; unit < units.size(); unit += 2) {
      text += static_cast<mqChar>(LoadLittleEndian(units.subspan(unit, 2)));
    }
    return text;
  }

  int TakeInteger(std::size_t& end) const {
    return static_cast<int>(static_cast<std::uint32_t>(LoadLittleEndian(Slice(end, 4))));
  }

  Bytes Slice(std::size_t& end, std::size_t size) const {
    const std::size_t left = m_bytes.size() - end;
    if (left < size) {
      throw DecodingFailure(
          std::to_string(size) + " bytes are needed at byte " + std::to_string(end) + ", and " +
          (left == 0 ? "the record ends there" : "only " + std::to_string(left) + " are left"));
    }
    const Bytes slice = m_bytes.subspan(end, size);
    end += size;
    return slice;
  }

  Bytes m_bytes;
  std::size_t m_position = 0;
};

}  // namespace

RecordView ViewRecord(Bytes bytes, const std::vector<RecordField>& layout, int version) {
  RecordView record;
  Decoder decoder(bytes);
  for (const RecordField& field : layout) {
    if (version < field.since) {
      continue;
    }
    FieldView& view = record.fields.emplace_back(FieldView{field, {}});
    try {
      while (view.values.size() < static_cast<std::size_t>(field.count)) {
        view.values.push_back(decoder.Take(field.type));
      }
    } catch (const DecodingFailure& failure) {
      record.fault = {NameValue(field, view.values.size()), decoder.Position(), failure.what()};
      record.end = decoder.Position();
      return record;
    }
  }
  record.end = decoder.Position();
  record.leftover = bytes.size() - record.end;
  return record;
}

const FieldView* FindField(const RecordView& record, std::string_view name) {
  const auto view = std::ranges::find_if(
      record.fields, [name](const FieldView& field) { return field.field.name == name; });
  return view == record.fields.end() ? nullptr : &*view;
}

std::vector<VersionRange> FindFittingVersions(Bytes bytes, const std::vector<RecordField>& layout) {
  std::set<int> starts;
  for (const RecordField& field : layout) {
    starts.insert(field.since);
  }
  std::vector<VersionRange> ranges;
  for (auto start = starts.begin(); start != starts.end(); ++start) {
    if (ViewRecord(bytes, layout, *start).Fits()) {
      const auto next = std::next(start);
      ranges.push_back({*start, next == starts.end() ? std::nullopt : std::optional(*next - 1)});
    }
  }
  return ranges;
}

int FirstVersion(const std::vector<RecordField>& layout) {
  return std::ranges::min(layout, {}, &RecordField::since).since;
}

std::string ShowValue(const StoredValue& value, int columns) {
  if (const int* integer = std::get_if<int>(&value)) {
    return std::to_string(*integer);
  }
  if (const double* number = std::get_if<double>(&value)) {
    return ShowNumber(*number);
  }
  const auto& text = std::get<std::basic_string<mqChar>>(value);
  const std::string shown = Printable(Utf8(mqTextView(text)));
  if (columns <= 0 || CountColumns(shown) <= columns) {
    return '"' + shown + '"';
  }
  return '"' + Shorten(shown, columns) + "\" (" + std::to_string(text.size()) + " units)";
}

std::string ShowValues(const FieldView& field, int columns) {
  std::vector<std::string> values;
  for (const ValueView& value : field.values) {
    values.push_back(ShowValue(value.value, columns));
  }
  return Join(values, "  ");
}

std::string NameValue(const RecordField& field, std::size_t index) {
  return std::string(field.name) + (field.count > 1 ? " [" + std::to_string(index) + "]" : "");
}

std::string_view NameType(FieldType type) {
  switch (type) {
    case FieldType::Integer: return "integer";
    case FieldType::Double: return "double";
    case FieldType::String: break;
  }
  return "string";
}

}  // namespace mqp::tool
