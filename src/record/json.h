// JSON as the record's lines hold it: values, a reader that takes nothing but JSON, and a writer. Texts are the core's,
// one byte a character; what ASCII lacks is written as \u00XX by its code in Windows-1252, so that every line is ASCII.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace pawnfield {

class Json {
 public:
  using List = std::vector<Json>;
  // In the order in which they were written.
  using Members = std::vector<std::pair<std::string, Json>>;

  Json() = default;
  // NOLINTBEGIN(google-explicit-constructor): a plain value is one of JSON's.
  Json(bool value) : value_(value) {}
  Json(int value) : value_(static_cast<std::int64_t>(value)) {}
  Json(std::int64_t value) : value_(value) {}
  Json(double value) : value_(value) {}
  Json(std::string value) : value_(std::move(value)) {}
  Json(const char* value) : value_(std::string(value)) {}
  Json(List value) : value_(std::move(value)) {}
  Json(Members value) : value_(std::move(value)) {}
  // NOLINTEND(google-explicit-constructor)

  bool operator==(const Json&) const = default;

  // What the value is, or the fallback where it is something else. A whole number beyond 64 bits is none.
  bool AsBool(bool fallback = false) const;
  std::int64_t AsNumber(std::int64_t fallback = 0) const;
  std::string AsText(const std::string& fallback = {}) const;
  // Empty where it is none.
  const List& AsList() const;
  const Members& AsMembers() const;
  // The member of that name; null where there is none.
  const Json* Find(std::string_view name) const;

  // On one line, without blanks.
  std::string Text() const;
  // Nothing where the text isn't one JSON value, or nests deeper than 32.
  static std::optional<Json> Parse(std::string_view text);

 private:
  std::variant<std::monostate, bool, std::int64_t, double, std::string, List, Members> value_;
};

}  // namespace pawnfield
