#include "pages/markup.h"

#include "render/svg_text.h"
#include "text/encoding.h"

namespace orb::pages {

std::string Text(std::string_view windows1252) {
  return render::Escaped(windows1252);
}

std::string Element(std::string_view name, const std::vector<Attribute>& attributes,
                    std::string_view content) {
  std::string markup = "<";
  markup.append(name);
  for (const Attribute& attribute : attributes) {
    markup.append(" ").append(attribute.Name);
    markup.append("=\"").append(Text(attribute.Value)).append("\"");
  }
  return markup.append(">").append(content).append("</").append(name).append(">");
}

std::string Element(std::string_view name, std::string_view content) {
  return Element(name, {}, content);
}

std::string JsonText(std::string_view windows1252) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string json = "\"";
  for (const char c : text::ToUtf8(windows1252)) {
    const auto code = static_cast<unsigned char>(c);
    // "<" could end the script element or begin a comment in it.
    if (code < 0x20 || c == '"' || c == '\\' || c == '<' || c == '>' || c == '&' || code == 0x7F) {
      json.append("\\u00").append(1, digits[code >> 4]).append(1, digits[code & 0xF]);
    } else {
      json.push_back(c);
    }
  }
  return json.append("\"");
}

std::string Joined(const std::vector<std::string>& parts) {
  std::string all;
  for (const std::string& part : parts)
    all.append(all.empty() ? "" : ",").append(part);
  return all;
}

std::string Member(std::string_view key, std::string_view value) {
  return std::string("\"").append(key).append("\":").append(value);
}

}  // namespace orb::pages
