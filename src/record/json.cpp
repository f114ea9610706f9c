#include "record/json.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace pawnfield {

namespace {

constexpr int kDeepest = 32;
constexpr char kHex[] = "0123456789abcdef";

void WriteText(std::string& out, const std::string& text) {
  out += '"';
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      out += '\\';
      out += c;
    } else if (byte >= 0x20 && byte < 0x7F) {
      out += c;
    } else {
      out += "\\u00";
      out += kHex[byte >> 4];
      out += kHex[byte & 15];
    }
  }
  out += '"';
}

template <typename Number>
void WriteNumber(std::string& out, Number number) {
  char digits[40];
  const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
  out.append(digits, end);
}

struct Writer {
  std::string& out;
  void operator()(std::monostate) const { out += "null"; }
  void operator()(bool value) const { out += value ? "true" : "false"; }
  void operator()(std::int64_t value) const { WriteNumber(out, value); }
  void operator()(double value) const {
    if (!std::isfinite(value)) {
      out += "null";
      return;
    }
    const std::size_t from = out.size();
    WriteNumber(out, value);
    // Without a point it would be read as a whole number.
    if (out.find_first_of(".e", from) == std::string::npos) out += ".0";
  }
  void operator()(const std::string& value) const { WriteText(out, value); }
  void operator()(const Json::List& value) const {
    out += '[';
    for (std::size_t i = 0; i < value.size(); ++i) {
      if (i > 0) out += ',';
      out += value[i].Text();
    }
    out += ']';
  }
  void operator()(const Json::Members& value) const {
    out += '{';
    for (std::size_t i = 0; i < value.size(); ++i) {
      if (i > 0) out += ',';
      WriteText(out, value[i].first);
      out += ':';
      out += value[i].second.Text();
    }
    out += '}';
  }
};

class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  std::optional<Json> Whole() {
    Json json;
    if (!Value(json, 0)) return std::nullopt;
    SkipBlanks();
    if (at_ != text_.size()) return std::nullopt;
    return json;
  }

 private:
  void SkipBlanks() {
    while (at_ < text_.size() && std::string_view(" \t\r\n").find(text_[at_]) != std::string_view::npos) ++at_;
  }

  bool Take(char c) {
    SkipBlanks();
    if (at_ >= text_.size() || text_[at_] != c) return false;
    ++at_;
    return true;
  }

  bool Word(std::string_view word, Json value, Json& json) {
    if (text_.substr(at_, word.size()) != word) return false;
    at_ += word.size();
    json = std::move(value);
    return true;
  }

  bool Value(Json& json, int depth) {
    SkipBlanks();
    if (depth > kDeepest || at_ >= text_.size()) return false;
    switch (text_[at_]) {
      case '{':
        return ReadMembers(json, depth);
      case '[':
        return ReadList(json, depth);
      case '"': {
        std::string text;
        if (!ReadText(text)) return false;
        json = Json(std::move(text));
        return true;
      }
      case 't':
        return Word("true", Json(true), json);
      case 'f':
        return Word("false", Json(false), json);
      case 'n':
        return Word("null", Json(), json);
      default:
        return ReadNumber(json);
    }
  }

  bool ReadList(Json& json, int depth) {
    Take('[');
    Json::List list;
    if (!Take(']')) {
      do {
        list.emplace_back();
        if (!Value(list.back(), depth + 1)) return false;
      } while (Take(','));
      if (!Take(']')) return false;
    }
    json = Json(std::move(list));
    return true;
  }

  bool ReadMembers(Json& json, int depth) {
    Take('{');
    Json::Members members;
    if (!Take('}')) {
      do {
        SkipBlanks();
        members.emplace_back();
        if (!ReadText(members.back().first) || !Take(':') || !Value(members.back().second, depth + 1)) return false;
      } while (Take(','));
      if (!Take('}')) return false;
    }
    json = Json(std::move(members));
    return true;
  }

  bool ReadText(std::string& text) {
    if (at_ >= text_.size() || text_[at_] != '"') return false;
    for (++at_; at_ < text_.size(); ++at_) {
      const char c = text_[at_];
      if (c == '"') {
        ++at_;
        return true;
      }
      if (static_cast<unsigned char>(c) < 0x20) return false;
      if (c != '\\') {
        text += c;
      } else if (!Escape(text)) {
        return false;
      }
    }
    return false;
  }

  // From the backslash to the escape's last character.
  bool Escape(std::string& text) {
    if (++at_ >= text_.size()) return false;
    constexpr std::string_view kNames = "\"\\/bfnrt", kMeanings = "\"\\/\b\f\n\r\t";
    const std::size_t named = kNames.find(text_[at_]);
    if (named != std::string_view::npos) {
      text += kMeanings[named];
      return true;
    }
    if (text_[at_] != 'u' || at_ + 4 >= text_.size()) return false;
    unsigned code = 0;
    const char* first = text_.data() + at_ + 1;
    const auto [end, error] = std::from_chars(first, first + 4, code, 16);
    if (error != std::errc() || end != first + 4 || code > 0xFF) return false;
    at_ += 4;
    text += static_cast<char>(code);
    return true;
  }

  // JSON's own form, which the C++ readers would take more than.
  std::size_t NumberLength() const {
    std::size_t i = at_;
    const auto digits = [&] {
      const std::size_t from = i;
      while (i < text_.size() && text_[i] >= '0' && text_[i] <= '9') ++i;
      return i - from;
    };
    if (i < text_.size() && text_[i] == '-') ++i;
    const std::size_t first = i;
    const std::size_t whole = digits();
    if (whole == 0 || (whole > 1 && text_[first] == '0')) return 0;
    if (i < text_.size() && text_[i] == '.' && (++i, digits() == 0)) return 0;
    if (i < text_.size() && (text_[i] == 'e' || text_[i] == 'E')) {
      ++i;
      if (i < text_.size() && (text_[i] == '+' || text_[i] == '-')) ++i;
      if (digits() == 0) return 0;
    }
    return i - at_;
  }

  bool ReadNumber(Json& json) {
    const std::size_t length = NumberLength();
    if (length == 0) return false;
    const char* first = text_.data() + at_;
    const char* last = first + length;
    at_ += length;
    std::int64_t whole = 0;
    if (const auto [end, error] = std::from_chars(first, last, whole); error == std::errc() && end == last) {
      json = Json(whole);
      return true;
    }
    double number = 0;
    if (std::from_chars(first, last, number).ec != std::errc()) return false;
    json = Json(number);
    return true;
  }

  std::string_view text_;
  std::size_t at_ = 0;
};

}  // namespace

bool Json::AsBool(bool fallback) const {
  const bool* value = std::get_if<bool>(&value_);
  return value != nullptr ? *value : fallback;
}

std::int64_t Json::AsNumber(std::int64_t fallback) const {
  const std::int64_t* value = std::get_if<std::int64_t>(&value_);
  return value != nullptr ? *value : fallback;
}

std::string Json::AsText(const std::string& fallback) const {
  const std::string* value = std::get_if<std::string>(&value_);
  return value != nullptr ? *value : fallback;
}

const Json::List& Json::AsList() const {
  static const List kNone;
  const List* value = std::get_if<List>(&value_);
  return value != nullptr ? *value : kNone;
}

const Json::Members& Json::AsMembers() const {
  static const Members kNone;
  const Members* value = std::get_if<Members>(&value_);
  return value != nullptr ? *value : kNone;
}

const Json* Json::Find(std::string_view name) const {
  for (const auto& [key, value] : AsMembers()) {
    if (key == name) return &value;
  }
  return nullptr;
}

std::string Json::Text() const {
  std::string out;
  std::visit(Writer{out}, value_);
  return out;
}

std::optional<Json> Json::Parse(std::string_view text) { return Reader(text).Whole(); }

}  // namespace pawnfield
