#include "mail/mail_header.h"

#include "text/strings.h"

#include <algorithm>
#include <array>

namespace orb::mail {
namespace {

using text::IsOneOf;

/// Labels that nobody but a mail program writes.
constexpr std::array<std::string_view, 5> CertainLabels{"message-id", "mime-version", "received",
                                                        "content-type", "return-path"};
/// Other labels that speak for a mail.
constexpr std::array<std::string_view, 4> MailLabels{"from", "to", "subject", "date"};
/// Labels of one word that headers have besides. Those of several words have a hyphen.
constexpr std::array<std::string_view, 13> OtherLabels{
    "cc",         "bcc",        "sender",   "sent",   "references", "comments", "organization",
    "importance", "precedence", "priority", "status", "lines",      "keywords"};

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool IsBlank(std::string_view line) {
  return line.find_first_not_of(" \t") == std::string_view::npos;
}

bool IsFolded(std::string_view line) {
  return line.starts_with(' ') || line.starts_with('\t');
}

/// The label of a line of a header, in small letters; empty where it is no such line.
std::string LabelOf(std::string_view line) {
  const std::size_t colon = line.find(':');
  if (colon == std::string_view::npos) return {};
  const std::string_view label = line.substr(0, colon);
  const auto isAllowed = [](char c) { return c > ' ' && c < '\x7f'; };
  return std::ranges::all_of(label, isAllowed) ? text::LowerCase(label) : std::string();
}

/// "From tom@example.org Mon Jan 1 10:00:00 2024", with a time of day and a year: "From Paris to
/// Burgundy" has neither.
bool IsBoxLine(std::string_view line) {
  if (!line.starts_with("From ")) return false;
  const std::size_t colon = line.find(':');
  const bool hasTime = colon != std::string_view::npos && colon + 2 < line.size() &&
                       IsDigit(line[colon - 1]) && IsDigit(line[colon + 1]) &&
                       IsDigit(line[colon + 2]);
  const auto isYear = [](std::string_view word) {
    return word.size() == 4 && std::ranges::all_of(word, IsDigit);
  };
  while (hasTime && !line.empty()) {
    const std::size_t end = std::min(line.find(' '), line.size());
    if (isYear(line.substr(0, end))) return true;
    line.remove_prefix(std::min(end + 1, line.size()));
  }
  return false;
}

/// The text from its first line on: without byte order mark and empty lines.
std::string_view FromFirstLine(std::string_view bytes) {
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  if (bytes.starts_with(mark)) bytes.remove_prefix(mark.size());
  bytes.remove_prefix(std::min(bytes.find_first_not_of("\r\n"), bytes.size()));
  return bytes;
}

/// What the lines of a header say of what they head.
struct HeaderSigns {
  int Labels = 0;          ///< how many speak for a mail
  bool IsCertain = false;  ///< it was written by a mail program
  bool HasAddress = false;
  bool HasUnknown = false;

  void Take(std::string_view label, std::string_view line) {
    const bool isCertain = IsOneOf(label, CertainLabels);
    const bool isKnown = isCertain || IsOneOf(label, MailLabels);
    if (isKnown) ++Labels;
    IsCertain = IsCertain || isCertain;
    HasAddress = HasAddress || line.find('@') != std::string_view::npos;
    const bool isOther = IsOneOf(label, OtherLabels) || label.find('-') != std::string_view::npos;
    HasUnknown = HasUnknown || (!isKnown && !isOther);
  }
};

/// A line ">From Paris" of a box was "From Paris" before; between lines that are quoted it may have
/// been written so.
bool IsEscaped(std::string_view before, std::string_view line, std::string_view after) {
  const std::size_t marks = line.find_first_not_of('>');
  return marks != 0 && marks != std::string_view::npos && line.substr(marks).starts_with("From ") &&
         !before.starts_with('>') && !after.starts_with('>');
}

std::string_view FirstLine(std::string_view text) {
  return text::NextLine(text);
}

}  // namespace

bool LooksLikeMail(std::string_view bytes) {
  bytes = FromFirstLine(bytes);
  HeaderSigns signs;
  if (IsBoxLine(FirstLine(bytes))) {
    signs = {1, true, false, false};
    text::NextLine(bytes);
  }
  while (!bytes.empty()) {
    const std::string_view line = text::NextLine(bytes);
    if (IsBlank(line)) break;
    const std::string label = LabelOf(line);
    if (IsFolded(line) && signs.Labels > 0) {
      signs.HasAddress = signs.HasAddress || line.find('@') != std::string_view::npos;
    } else if (label.empty()) {
      // Where a program wrote it, a line of it may have been broken by another one.
      return signs.IsCertain && signs.Labels >= 2;
    } else {
      signs.Take(label, line);
    }
  }
  // "Paris: move to Burgundy" below "From: tom@example.org" is an order, not a part of the header.
  return signs.Labels >= 2 && (signs.IsCertain || (signs.HasAddress && !signs.HasUnknown));
}

std::vector<std::string> CutMails(std::string_view bytes) {
  bytes = FromFirstLine(bytes);
  if (!IsBoxLine(FirstLine(bytes))) return {std::string(bytes)};
  std::vector<std::string> mails;
  std::string_view before;
  while (!bytes.empty()) {
    std::string_view whole = bytes;
    const std::string_view line = text::NextLine(bytes);
    whole.remove_suffix(bytes.size());
    const std::string_view after = FirstLine(bytes);
    if (IsBlank(before) && IsBoxLine(line) && !LabelOf(after).empty()) {
      mails.emplace_back();
    } else if (!mails.empty()) {
      if (IsEscaped(before, line, after)) whole.remove_prefix(1);
      mails.back() += whole;
    }
    before = line;
  }
  return mails;
}

}  // namespace orb::mail
