#pragma once

#include <gmime/gmime.h>
#include <memory>
#include <string>
#include <string_view>

namespace orb::mail {

struct Unref {
  void operator()(void* object) const { g_object_unref(object); }
};

/// An object of GMime's that is one's own.
template <class Object>
using Owned = std::unique_ptr<Object, Unref>;

/// A text of a header as GMime gives it, which may be none, in one line of UTF-8.
std::string HeaderText(const char* text);

/// Bytes in a character set as UTF-8. What says itself that it is UTF-8 is taken for that; bytes of
/// a set that is not known, or of none, for Windows-1252.
std::string InUtf8(std::string bytes, const char* charset);

/// The content of a part without its transfer encoding.
std::string Content(GMimePart* part);

}  // namespace orb::mail
