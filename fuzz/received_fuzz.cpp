#include "letters/received.h"

#include "support/fuzzing.h"

// The input is a register of received orders, which people may have written into.

namespace orb::fuzz {
namespace {

std::string Written(const std::vector<letters::Receipt>& receipts) {
  std::string text;
  for (const letters::Receipt& receipt : receipts)
    text.append(letters::FormatReceipt(receipt));
  return text;
}

void ReadAndWrite(std::string_view text) {
  const std::vector<letters::Receipt> read = letters::ParseRegister(text);
  const std::string written = Written(read);
  const std::vector<letters::Receipt> again = letters::ParseRegister(written);
  Require(again.size() == read.size(), "another number of entries", written);
  Require(Written(again) == written, "reads back otherwise", written);
  for (const letters::Receipt& receipt : again) {
    Require(letters::Mentions(receipt, receipt.Source), "its source is not found", written);
    Require(letters::Mentions(receipt, receipt.Time), "its time is not found", written);
  }
}

}  // namespace
}  // namespace orb::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  orb::fuzz::ReadAndWrite(orb::fuzz::Text(data, size));
  return 0;
}
