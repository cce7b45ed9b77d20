#include "texts.h"

#include "model/errors.h"
#include "text/encoding.h"
#include "text/strings.h"

#include <algorithm>

namespace py = pybind11;

namespace orb::python {

py::str Text(std::string_view text) {
  const bool isAscii =
      std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  if (isAscii) return {text.data(), text.size()};
  const std::string utf8 = text::ToUtf8(text);
  return {utf8.data(), utf8.size()};
}

py::list Texts(const std::vector<std::string>& texts) {
  py::list list(texts.size());
  for (std::size_t i = 0; i < texts.size(); ++i)
    list[i] = Text(texts[i]);
  return list;
}

std::string Bytes(std::string_view utf8) {
  const bool isAscii =
      std::ranges::all_of(utf8, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  if (isAscii) return std::string(utf8);
  if (auto bytes = text::ToWindows1252(utf8)) return std::move(*bytes);
  throw model::FatalError("The text has a character without an 8-bit form (Windows-1252).");
}

std::vector<std::string> Lines(const py::object& lines) {
  std::vector<std::string> list;
  if (py::isinstance<py::str>(lines)) {
    const std::string text = Bytes(py::cast<std::string_view>(lines));
    std::string_view rest = text;
    while (!rest.empty()) {
      const std::string_view line = text::NextLine(rest);
      if (line.find_first_not_of(" \t") != std::string_view::npos) list.emplace_back(line);
    }
    return list;
  }
  for (const py::handle line : py::iter(lines))
    list.push_back(Bytes(py::cast<std::string_view>(line)));
  return list;
}

}  // namespace orb::python
