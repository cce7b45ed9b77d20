#include "mail/html_lines.h"
#include "mail/mime.h"
#include "mime_text.h"

#include "model/errors.h"
#include "text/strings.h"

#include <algorithm>
#include <exception>

namespace orb::mail {
namespace {

/// The texts of a mail or of a part, each ended by a line end.
struct Texts {
  std::string Own;
  std::string Attached;
  std::string Forwarded;

  std::string All() const { return Own + Attached + Forwarded; }
};

bool IsBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

/// A text that ends with its line. A form feed or a byte of value 0 in it has nothing to say.
std::string Ended(std::string text) {
  std::ranges::replace_if(
      text, [](char c) { return c == '\0' || c == '\f'; }, ' ');
  if (!text.empty() && text.back() != '\n') text += '\n';
  return text;
}

bool IsType(GMimeObject* object, const char* type, const char* subtype) {
  return g_mime_content_type_is_type(g_mime_object_get_content_type(object), type, subtype) !=
         FALSE;
}

/// Whether a part is a text that can be read as it is. Some programs attach texts as files of no
/// certain type, and what has no type at all is most likely a text.
bool IsPlainText(GMimePart* part) {
  GMimeObject* const object = GMIME_OBJECT(part);
  const std::string name = text::LowerCase(HeaderText(g_mime_part_get_filename(part)));
  const char* const type = g_mime_object_get_header(object, "Content-Type");
  const bool isNoType = type != nullptr && std::string_view(type).find('/') == std::string::npos;
  return IsType(object, "text", "plain") || name.ends_with(".txt") || isNoType;
}

bool IsAttached(GMimePart* part) {
  const char* const disposition = g_mime_object_get_disposition(GMIME_OBJECT(part));
  return g_mime_part_get_filename(part) != nullptr ||
         (disposition != nullptr && g_ascii_strcasecmp(disposition, "attachment") == 0);
}

Mail HeadOf(GMimeMessage* message) {
  Mail head;
  head.Subject = HeaderText(g_mime_message_get_subject(message));
  InternetAddressList* const senders = g_mime_message_get_from(message);
  if (internet_address_list_length(senders) == 0) return head;
  // Of several senders the first one stands for all.
  InternetAddress* const sender = internet_address_list_get_address(senders, 0);
  if (INTERNET_ADDRESS_IS_MAILBOX(sender)) {
    head.Address = HeaderText(internet_address_mailbox_get_addr(INTERNET_ADDRESS_MAILBOX(sender)));
  }
  head.Sender = HeaderText(internet_address_get_name(sender));
  if (head.Sender.empty()) {
    head.Sender = head.Address;
  } else if (!head.Address.empty()) {
    head.Sender.append(" <").append(head.Address).append(">");
  }
  return head;
}

[[noreturn]] void ThrowTooManyParts() {
  throw model::FatalError("A mail has more than " + std::to_string(PartBound) +
                          " parts; no more are read.");
}

/// Reads the parts of one mail, those of forwarded ones too.
class PartReader {
 public:
  Texts ReadMessage(GMimeMessage* message, int depth) {
    GMimeObject* const part = g_mime_message_get_mime_part(message);
    return part == nullptr ? Texts{} : Read(part, depth);
  }

 private:
  Texts Read(GMimeObject* object, int depth) {
    if (++parts_ > PartBound) ThrowTooManyParts();
    if (depth > DepthBound) {
      throw model::FatalError("A mail has parts that lie more than " + std::to_string(DepthBound) +
                              " deep in each other; such ones are not read.");
    }
    if (GMIME_IS_MULTIPART(object)) return ReadParts(GMIME_MULTIPART(object), depth);
    if (GMIME_IS_MESSAGE_PART(object)) return ReadForwarded(GMIME_MESSAGE_PART(object), depth);
    return GMIME_IS_PART(object) ? ReadText(GMIME_PART(object)) : Texts{};
  }

  Texts ReadParts(GMimeMultipart* parts, int depth) {
    const bool isChoice = IsType(GMIME_OBJECT(parts), "multipart", "alternative");
    Texts all;
    bool isPlain = false;
    const int count = g_mime_multipart_get_count(parts);
    for (int i = 0; i < count; ++i) {
      GMimeObject* const part = g_mime_multipart_get_part(parts, i);
      const Texts read = Read(part, depth + 1);
      all.Attached += read.Attached;
      all.Forwarded += read.Forwarded;
      if (!isChoice) {
        all.Own += read.Own;
      } else if (!isPlain && !IsBlank(read.Own)) {
        // The last form is the richest; the plain one is what the writer typed.
        all.Own = read.Own;
        isPlain = IsType(part, "text", "plain");
      }
    }
    if (count == 0) {
      // The boundary is missing or wrong: everything stands before the first one.
      all.Own = Ended(InUtf8(Text(g_mime_multipart_get_prologue(parts)), ""));
    }
    return all;
  }

  static std::string Text(const char* text) { return text == nullptr ? "" : text; }

  Texts ReadForwarded(GMimeMessagePart* part, int depth) {
    GMimeMessage* const message = g_mime_message_part_get_message(part);
    if (message == nullptr) return {};
    // As mail programs write it, so that the reader of orders takes what follows as older.
    const Mail head = HeadOf(message);
    return {{},
            {},
            "---------- Forwarded message ----------\nFrom: " + head.Sender +
                "\nSubject: " + head.Subject + "\n\n" + ReadMessage(message, depth + 1).All()};
  }

  Texts ReadText(GMimePart* part) {
    const bool isHtml = IsType(GMIME_OBJECT(part), "text", "html");
    const bool isAttached = IsAttached(part);
    // Pictures and documents hold no orders that could be read.
    if (!IsPlainText(part) && (!isHtml || isAttached)) return {};
    const char* const charset =
        g_mime_object_get_content_type_parameter(GMIME_OBJECT(part), "charset");
    std::string text = InUtf8(Content(part), charset);
    if (isHtml) text = HtmlLines(text);
    if (!isAttached) return {Ended(std::move(text)), {}, {}};
    const std::string name = HeaderText(g_mime_part_get_filename(part));
    return {{}, "Attachment " + name + ":\n" + Ended(std::move(text)), {}};
  }

  int parts_ = 0;
};

/// Throws for a text that may have so many parts that they would fill the memory: GMime takes it
/// apart before they can be counted. Lines of other texts begin with "--", too.
void CheckBoundaries(std::string_view bytes) {
  constexpr int bound = 50 * PartBound;
  int count = 0;
  for (std::size_t at = bytes.find("\n--"); at != std::string_view::npos;
       at = bytes.find("\n--", at + 1)) {
    if (++count > bound) ThrowTooManyParts();
  }
}

void ReadMail(std::string_view bytes, Mail& mail) {
  CheckBoundaries(bytes);
  static const bool isReady = (g_mime_init(), true);
  static_cast<void>(isReady);
  const Owned<GMimeStream> stream(g_mime_stream_mem_new_with_buffer(bytes.data(), bytes.size()));
  const Owned<GMimeParser> parser(g_mime_parser_new_with_stream(stream.get()));
  const Owned<GMimeMessage> message(g_mime_parser_construct_message(parser.get(), nullptr));
  // What GMime finds no mail in is given as it stands: somebody may still read it.
  if (message == nullptr) {
    mail.Text = Ended(InUtf8(std::string(bytes), ""));
    return;
  }
  mail = HeadOf(message.get());
  mail.Text = PartReader().ReadMessage(message.get(), 0).All();
}

}  // namespace
}  // namespace orb::mail

extern "C" bool OrbReadMail(std::string_view bytes, orb::mail::Mail& mail, std::string& error) {
  try {
    orb::mail::ReadMail(bytes, mail);
  } catch (const std::exception& problem) {
    error = problem.what();
    return false;
  }
  return true;
}
