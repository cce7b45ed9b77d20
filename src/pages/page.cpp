#include "pages/page.h"

#include "pages/assets.h"
#include "pages/markup.h"

#include "render/svg_text.h"

namespace orb::pages {
namespace {

/// A hash as a content security policy has it; the build tells it in hexadecimal digits.
std::string PolicyHash(std::string_view digits) {
  const auto value = [](char digit) { return digit <= '9' ? digit - '0' : digit - 'a' + 10; };
  std::string bytes;
  for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
    bytes.push_back(static_cast<char>(value(digits[i]) * 16 + value(digits[i + 1])));
  return "'sha256-" + render::Base64(bytes) + "'";
}

/// An element without content or end.
std::string Meta(std::string_view first, std::string_view value, std::string_view content) {
  return std::string("<meta ").append(first).append("=\"").append(value).append("\" content=\"") +
         std::string(content).append("\">\n");
}

}  // namespace

std::string Page(const PageParts& parts) {
  const std::string policy = "default-src 'none'; img-src data:; style-src " +
                             PolicyHash(StyleSheetHash) + "; script-src " + PolicyHash(parts.Hash) +
                             "; base-uri 'none'; form-action 'none'";
  std::string page = "<!DOCTYPE html>\n<html lang=\"";
  page.append(parts.Language).append("\">\n<head>\n<meta charset=\"utf-8\">\n");
  page.append(Meta("http-equiv", "Content-Security-Policy", policy));
  page.append(Meta("name", "viewport", "width=device-width, initial-scale=1"));
  page.append(Meta("name", "color-scheme", "light dark"));
  page.append(Meta("name", "generator", "ORB"));
  page.append(Element("title", Text(parts.Title))).append("\n<style>");
  page.append(StyleSheet).append("</style>\n</head>\n<body>\n").append(parts.Body);
  page.append("<script type=\"application/json\" id=\"data\">").append(parts.Data);
  page.append("</script>\n<script>").append(parts.Script).append("</script>\n</body>\n</html>\n");
  return page;
}

}  // namespace orb::pages
