#include "record_output.h"

#include <cmath>
#include <utility>

#include "table.h"
#include "text.h"

namespace mqp::tool {
namespace {

std::string ShowHex(Bytes bytes, std::string_view separator) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text;
  for (const std::byte byte : bytes) {
    const auto value = std::to_integer<unsigned>(byte);
    text += text.empty() ? "" : separator;
    text += kDigits[value >> 4];
    text += kDigits[value & 0xF];
  }
  return text;
}

std::string ShowFirstHex(Bytes bytes) {
  constexpr std::size_t kShown = 8;
  return bytes.size() > kShown ? ShowHex(bytes.first(kShown), " ") + " …" : ShowHex(bytes, " ");
}

}  // namespace

void PrintBytes(Session& session, const RecordView& stored) {
  Table table({{"byte", Align::Right},
               {"hex", Align::Left, 0, 11},
               {"field", Align::Left, 0, 23},
               {"type", Align::Left, 1},
               {"value", Align::Left, 0, 14},
               {"since", Align::Right, 2}});
  for (const FieldView& field : stored.fields) {
    for (std::size_t index = 0; index < field.values.size(); ++index) {
      const ValueView& value = field.values[index];
      table.Add({std::to_string(value.offset), ShowFirstHex(value.bytes), NameValue(field, index),
                 std::string(NameType(field.field.type)), ShowValue(value.value, 32),
                 std::to_string(field.field.since)});
    }
  }
  table.Print(session);
}

Json BytesToJson(const RecordView& stored) {
  Json rows = Json::array();
  for (const FieldView& field : stored.fields) {
    for (std::size_t index = 0; index < field.values.size(); ++index) {
      const ValueView& value = field.values[index];
      rows.push_back({{"offset", value.offset},
                      {"length", value.bytes.size()},
                      {"hex", ShowHex(value.bytes, "")},
                      {"field", field.name},
                      {"index", index},
                      {"type", NameType(field.field.type)},
                      {"value", ValueToJson(value.value)},
                      {"since", field.field.since}});
    }
  }
  return rows;
}

Json ValueToJson(const StoredValue& value) {
  if (const int* integer = std::get_if<int>(&value)) {
    return *integer;
  }
  if (const double* number = std::get_if<double>(&value)) {
    return std::isfinite(*number) ? Json(*number) : Json(ShowNumber(*number));
  }
  return Utf8(mqTextView(std::get<std::basic_string<mqChar>>(value)));
}

Json FieldToJson(const FieldView& field) {
  if (field.field.count == 1) {
    return ValueToJson(field.values.front().value);
  }
  Json values = Json::array();
  for (const ValueView& value : field.values) {
    values.push_back(ValueToJson(value.value));
  }
  return values;
}

Json ValuesToJson(const StoredRecord& record) {
  const RecordLayout& layout = record.Kind().layout;
  Json json = Json::object();
  Json children = Json::array();
  for (const FieldView& field : record.Values().fields) {
    Json* owner = &json;
    if (field.child) {
      while (children.size() <= *field.child) {
        children.push_back(Json::object());
      }
      owner = &children.back();
    }
    (*owner)[std::string(field.field.name)] = FieldToJson(field);
  }
  if (!layout.childFields.empty()) {
    json.erase(std::string(layout.fields.back().name));
    json[std::string(layout.childName) + "s"] = std::move(children);
  }
  return json;
}

Json CorrectionsToJson(const StoredRecord& record) {
  Json json = Json::object();
  for (const Correction& correction : record.Corrections()) {
    json[correction.name] = {{"stored", ValueToJson(correction.stored)},
                             {"read", ValueToJson(correction.read)}};
  }
  return json;
}

std::string ShowCorrection(const Correction& correction) {
  return correction.name + ": " + ShowValue(correction.stored, 32) + " -> " +
         ShowValue(correction.read, 32);
}

}  // namespace mqp::tool
