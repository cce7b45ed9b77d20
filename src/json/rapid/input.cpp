#include "json/rapid/input.h"

#include "json/rapid/output.h"

#include "model/record_file.h"
#include "text/encoding.h"

#include <algorithm>
#include <rapidjson/error/en.h>

namespace orb::json {
namespace {

/// Nothing deeper is of any use; the reader goes down by no recursion, so that depth is no danger.
constexpr unsigned Flags = rapidjson::kParseInsituFlag | rapidjson::kParseIterativeFlag;

/// Bytes that the reader may look at behind a text.
constexpr std::size_t Behind = 16;

/// "line 1, column 57"; columns are counted in bytes.
std::string LineAndColumn(std::string_view text, std::size_t offset) {
  const std::string_view before = text.substr(0, offset);
  const auto line = std::ranges::count(before, '\n') + 1;
  const std::size_t start = before.rfind('\n') + 1;
  std::string place = "line ";
  return place.append(std::to_string(line))
      .append(", column ")
      .append(std::to_string(offset - start + 1));
}

/// All bytes are looked at, which takes less time than to stop at the first.
bool IsAscii(std::string_view text) {
  unsigned char all = 0;
  for (const char c : text)
    all |= static_cast<unsigned char>(c);
  return all < 0x80;
}

/// Of a name or text that is shown; what has no 8-bit form is "?".
std::string Shown(std::string_view utf8) {
  return model::Shortened(text::NameInText(utf8));
}

}  // namespace

Document::Document(std::string_view text) {
  text_.reserve(text.size() + Behind);
  text_.append(text).append(Behind, '\0');
  rapidjson::InsituStringStream stream(text_.data());
  // All of ASCII is well encoded.
  if (IsAscii(text)) {
    document_.ParseStream<Flags>(stream);
  } else {
    document_.ParseStream<Flags | rapidjson::kParseValidateEncodingFlag>(stream);
  }
  const std::size_t end = document_.HasParseError() ? document_.GetErrorOffset() : stream.Tell();
  if (document_.HasParseError() || end != text.size()) {
    // A NUL ends the text for the reader.
    std::string problem = rapidjson::GetParseError_En(document_.GetParseError());
    if (!document_.HasParseError()) problem = "A NUL.";
    throw model::FatalError(
        std::string("This is no JSON: ").append(LineAndColumn(text, end)).append(": ") + problem);
  }
}

std::string Node::Text() const {
  std::string text;
  TakeText(text);
  return text;
}

void Node::TakeText(std::string& text) const {
  const std::string_view utf8 = Utf8();
  if (IsAscii(utf8)) {
    text.assign(utf8);
  } else if (auto bytes = text::ToWindows1252(utf8)) {
    text = std::move(*bytes);
  } else {
    Fail("has a character without an 8-bit form (Windows-1252)");
  }
}

std::string_view Node::Utf8() const {
  if (!value_.IsString()) Refuse("a text");
  return TextOf(value_);
}

bool Node::Flag() const {
  if (!value_.IsBool()) Refuse("true or false");
  return value_.GetBool();
}

std::int64_t Node::Whole(std::int64_t least, std::int64_t greatest) const {
  if (!value_.IsInt64() || value_.GetInt64() < least || value_.GetInt64() > greatest) {
    const std::string from = std::to_string(least);
    if (least == greatest) Refuse(from);
    std::string expected = "a whole number from ";
    expected.append(from).append(" to ").append(std::to_string(greatest));
    Refuse(expected);
  }
  return value_.GetInt64();
}

int Node::Count(int bound) const {
  if (!value_.IsArray()) Refuse("an array");
  if (value_.Size() > static_cast<unsigned>(bound))
    Fail(std::string("has more than ").append(std::to_string(bound)).append(" items"));
  return static_cast<int>(value_.Size());
}

std::string Node::Json() const {
  if (value_.IsUint64()) return std::to_string(value_.GetUint64());
  if (value_.IsInt64()) return std::to_string(value_.GetInt64());
  Output out;
  out.Utf8(Utf8());
  return out.Taken();
}

void Node::Fail(std::string_view what) const {
  std::string sentence = Place();
  throw model::FatalError(sentence.append(" ").append(what).append("."));
}

void Node::Refuse(std::string_view expected) const {
  std::string sentence = Place();
  sentence.append(": expected ").append(expected).append(", found ").append(Found());
  throw model::FatalError(sentence.append("."));
}

std::string Node::Place() const {
  std::string place = outer_ == nullptr ? std::string() : outer_->Place();
  if (outer_ != nullptr && outer_->outer_ == nullptr && index_ < 0) place.clear();
  if (index_ >= 0) return place.append("[").append(std::to_string(index_)).append("]");
  if (outer_ == nullptr) return "The whole";
  return place.append(place.empty() ? "" : ".").append(Shown(name_));
}

std::string Node::Found() const {
  switch (value_.GetType()) {
    case rapidjson::kNullType:
      return "null";
    case rapidjson::kFalseType:
      return "false";
    case rapidjson::kTrueType:
      return "true";
    case rapidjson::kObjectType:
      return "an object";
    case rapidjson::kArrayType:
      return "an array";
    case rapidjson::kStringType:
      return std::string("\"").append(Shown(TextOf(value_))).append("\"");
    case rapidjson::kNumberType:
      break;
  }
  if (value_.IsInt64()) return std::to_string(value_.GetInt64());
  return "a number";
}

}  // namespace orb::json
