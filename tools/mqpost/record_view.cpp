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
 public:
  DecodingFailure(std::size_t offset, const std::string& what)
      : std::runtime_error(what), m_offset(offset) {}
  /// Of the value that is not there.
  [[nodiscard]] std::size_t Offset() const noexcept { return m_offset; }

 private:
  std::size_t m_offset;
};

/// Takes values off the front of a record until one is not there.
class Decoder {
 public:
  explicit Decoder(Bytes bytes) : m_bytes(bytes) {}

  [[nodiscard]] std::size_t Position() const noexcept { return m_position; }
  [[nodiscard]] std::size_t Left() const noexcept { return m_bytes.size() - m_position; }

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
      throw DecodingFailure(m_position,
                            "the text claims " + std::to_string(count) + " code units, and 0 to " +
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
          m_position,
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

/// The bytes that a record with nothing but empty texts takes.
std::size_t LeastSize(const std::vector<RecordField>& fields, int version) {
  std::size_t size = 0;
  for (const RecordField& field : fields) {
    if (version >= field.since) {
      size += static_cast<std::size_t>(field.count) * (field.type == FieldType::Double ? 8 : 4);
    }
  }
  return size;
}

/// How many child records follow the counter.
/// \throw DecodingFailure when these cannot be as many as it says
std::size_t CountChildren(const ValueView& counter, const RecordLayout& layout, int version,
                          std::size_t left) {
  const int count = std::get<int>(counter.value);
  const std::string claim =
      "the record claims " + std::to_string(count) + " " + std::string(layout.childName) + "s";
  if (count < 0 || count > kMaximumChildCount) {
    throw DecodingFailure(counter.offset, claim + ", and 0 to " +
                                              std::to_string(kMaximumChildCount) + " are possible");
  }
  const auto children = static_cast<std::size_t>(count);
  const std::size_t least = LeastSize(layout.childFields, version);
  if (children * least > left) {
    throw DecodingFailure(counter.offset,
                          claim + " of at least " + std::to_string(least) + " bytes each, and " +
                              (left == 0 ? "the record ends there"
                                         : "only " + std::to_string(left) + " bytes are left"));
  }
  return children;
}

/// Takes the fields of one record that the version has.
void ViewFields(Decoder& decoder, const std::vector<RecordField>& fields, int version,
                const std::string& prefix, std::optional<std::size_t> child, RecordView& record) {
  for (const RecordField& field : fields) {
    if (version < field.since) {
      continue;
    }
    FieldView& view =
        record.fields.emplace_back(FieldView{field, prefix + std::string(field.name), child, {}});
    while (view.values.size() < static_cast<std::size_t>(field.count)) {
      view.values.push_back(decoder.Take(field.type));
    }
  }
}

void ViewChildren(Decoder& decoder, const RecordLayout& layout, int version, RecordView& record) {
  if (layout.childFields.empty() || version < layout.fields.back().since) {
    return;
  }
  const std::size_t children =
      CountChildren(record.fields.back().values.front(), layout, version, decoder.Left());
  for (std::size_t child = 0; child < children; ++child) {
    const std::string prefix = std::string(layout.childName) + " " + std::to_string(child) + ": ";
    ViewFields(decoder, layout.childFields, version, prefix, child, record);
  }
}

}  // namespace

RecordView ViewRecord(Bytes bytes, const RecordLayout& layout, int version) {
  RecordView record;
  Decoder decoder(bytes);
  try {
    ViewFields(decoder, layout.fields, version, {}, std::nullopt, record);
    ViewChildren(decoder, layout, version, record);
    record.leftover = decoder.Left();
  } catch (const DecodingFailure& failure) {
    const FieldView& last = record.fields.back();
    record.fault = {NameValue(last, last.values.size()), failure.Offset(), failure.what()};
  }
  record.end = decoder.Position();
  return record;
}

const FieldView* FindField(const RecordView& record, std::string_view name) {
  const auto view = std::ranges::find_if(
      record.fields, [name](const FieldView& field) { return field.name == name; });
  return view == record.fields.end() ? nullptr : &*view;
}

std::vector<VersionRange> FindFittingVersions(Bytes bytes, const RecordLayout& layout) {
  std::set<int> starts;
  for (const std::vector<RecordField>* fields : {&layout.fields, &layout.childFields}) {
    for (const RecordField& field : *fields) {
      starts.insert(field.since);
    }
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

int FirstVersion(const RecordLayout& layout) {
  return std::ranges::min(layout.fields, {}, &RecordField::since).since;
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

std::string NameValue(const FieldView& field, std::size_t index) {
  return field.name + (field.field.count > 1 ? " [" + std::to_string(index) + "]" : "");
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
