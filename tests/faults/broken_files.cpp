// Usage: broken_files SOURCE COUNT [SEED]
// Breaks files of every kind in many ways and hands them to what the fuzzers try (fuzz/*.cpp):
// each is refused in words or read whole, written and read back the same, within a second and
// within ten times its size and 50 MB. SOURCE is the directory of the project. A finding ends the
// run and names its seed; "broken_files SOURCE 1 SEED" shows it again, and writes the file to
// ORB_KEEP_BROKEN if that is set. Prints a line of figures.

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <malloc.h>
#include <random>
#include <string>
#include <string_view>
#include <sys/time.h>
#include <unistd.h>
#include <vector>

// Every fuzzer under a name of its own, see CMakeLists.txt.
extern "C" {
int TryGameFile(const std::uint8_t* data, std::size_t size);
int TryMapTables(const std::uint8_t* data, std::size_t size);
int TrySettings(const std::uint8_t* data, std::size_t size);
int TryHelp(const std::uint8_t* data, std::size_t size);
int TryRepairs(const std::uint8_t* data, std::size_t size);
int TryPicture(const std::uint8_t* data, std::size_t size);

// NOLINTBEGIN(bugprone-reserved-identifier): they are the library's own
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* old, std::size_t size);
void __libc_free(void* block);
// NOLINTEND(bugprone-reserved-identifier)
}

namespace {

// All memory that the program and its libraries take, counted.
std::atomic<std::int64_t> taken = 0;
std::atomic<std::int64_t> most = 0;

void* Counted(void* block) {
  if (block == nullptr) return nullptr;
  const std::int64_t now = taken += static_cast<std::int64_t>(malloc_usable_size(block));
  if (now > most) most = now;
  return block;
}

void Forget(void* block) {
  if (block != nullptr) taken -= static_cast<std::int64_t>(malloc_usable_size(block));
}

}  // namespace

extern "C" {
void* malloc(std::size_t size) {
  return Counted(__libc_malloc(size));
}
void* calloc(std::size_t count, std::size_t size) {
  return Counted(__libc_calloc(count, size));
}
void* realloc(void* old, std::size_t size) {
  Forget(old);
  return Counted(__libc_realloc(old, size));
}
void free(void* block) {
  Forget(block);
  __libc_free(block);
}
}

namespace {

namespace fs = std::filesystem;

using Random = std::mt19937_64;

struct Kind {
  const char* Name;
  int (*Try)(const std::uint8_t* data, std::size_t size);
  const char* Samples;  ///< a directory of them
  int Weight;           ///< of a hundred cases
};

constexpr auto Kinds = std::to_array<Kind>({
    {"game", TryGameFile, "examples", 45},
    {"game", TryGameFile, "fuzz/corpus/game_file", 10},
    {"map", TryMapTables, "fuzz/corpus/map_tables", 15},
    {"settings", TrySettings, "fuzz/corpus/settings", 7},
    {"help", TryHelp, "fuzz/corpus/help", 5},
    {"repairs", TryRepairs, "fuzz/corpus/repairs", 8},
    {"picture", TryPicture, "fuzz/corpus/picture", 10},
});

std::vector<std::string> Samples(const fs::path& directory) {
  std::vector<std::string> samples;
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(directory)) {
    if (!entry.is_regular_file()) continue;
    if (entry.path().extension() != ".txt" || directory.filename() != "examples") {
      files.push_back(entry.path());
    }
  }
  std::ranges::sort(files);
  for (const fs::path& file : files) {
    std::ifstream stream(file, std::ios::binary);
    samples.emplace_back(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
  }
  return samples;
}

std::size_t Below(Random& random, std::size_t bound) {
  return bound == 0 ? 0 : random() % bound;
}

/// Where a line begins.
std::size_t AnyLine(const std::string& bytes, Random& random) {
  const std::size_t end = bytes.rfind('\n', Below(random, bytes.size()));
  return end == std::string::npos ? 0 : end + 1;
}

std::size_t LineSize(const std::string& bytes, std::size_t start) {
  const std::size_t end = bytes.find('\n', start);
  return (end == std::string::npos ? bytes.size() : end + 1) - start;
}

void SwapLines(std::string& bytes, Random& random) {
  const std::size_t from = AnyLine(bytes, random);
  const std::string line = bytes.substr(from, LineSize(bytes, from));
  if (Below(random, 3) > 0) bytes.erase(from, line.size());
  bytes.insert(AnyLine(bytes, random), line);
}

/// Puts another number in the place of one.
void ChangeCount(std::string& bytes, Random& random) {
  constexpr std::string_view digits = "0123456789";
  constexpr auto numbers = std::to_array<std::string_view>(
      {"-1", "0", "1", "7", "40", "41", "90", "91", "32767", "32768", "-32768",
       "99999999999999999999", "1e9", "nan", "+5", ""});
  const std::size_t from = bytes.find_first_of(digits, Below(random, bytes.size()));
  if (from == std::string::npos) return;
  const std::size_t end = std::min(bytes.find_first_not_of(digits, from), bytes.size());
  bytes.replace(from, end - from, numbers[Below(random, std::size(numbers))]);
}

/// Numbers of a bitmap's header: sizes and the place of the pixels.
void ChangeHeader(std::string& bytes, Random& random) {
  constexpr auto places = std::to_array<std::size_t>({2, 10, 14, 18, 22, 26, 28, 30, 34, 38, 46});
  constexpr auto numbers = std::to_array<std::uint32_t>(
      {0, 1, 8, 60000, 20000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF, 0xFFFF15A0});
  const std::size_t at = places[Below(random, std::size(places))];
  const std::uint32_t number = numbers[Below(random, std::size(numbers))];
  for (std::size_t i = 0; i < 4 && at + i < bytes.size(); ++i)
    bytes[at + i] = static_cast<char>(number >> 8 * i);
}

std::string Repeated(std::string_view piece, std::size_t size) {
  std::string bytes;
  while (bytes.size() < size)
    bytes += piece;
  return bytes;
}

void Insert(std::string& bytes, std::string_view piece, Random& random) {
  bytes.insert(Below(random, bytes.size() + 1), piece);
}

void FlipBit(char& byte, Random& random) {
  byte = static_cast<char>(static_cast<unsigned char>(byte) ^ (1U << Below(random, 8)));
}

void Break(std::string& bytes, const std::vector<std::string>& others, Random& random) {
  switch (Below(random, 12)) {
    case 0:
      return bytes.resize(Below(random, bytes.size() + 1));
    case 1:
    case 2:
      for (auto i = 1 + Below(random, 8); i > 0 && !bytes.empty(); --i)
        FlipBit(bytes[Below(random, bytes.size())], random);
      return;
    case 3:
      return SwapLines(bytes, random);
    case 4:
    case 5:
      return ChangeCount(bytes, random);
    case 6:
      return Insert(bytes, "\"", random);
    case 7:
      return Insert(bytes, std::string(1 + Below(random, 3), '\0'), random);
    case 8: {
      constexpr auto pieces = std::to_array<std::string_view>(
          {",", "\"\"", "a", "\r", "\n", "\",\"", " ", "=", "\xff", "%", "["});
      const std::size_t size = Below(random, 50) == 0 ? 1000000 : Below(random, 5000);
      return Insert(bytes, Repeated(pieces[Below(random, std::size(pieces))], size), random);
    }
    case 9: {
      const std::string& other = others[Below(random, others.size())];
      return Insert(bytes, std::string_view(other).substr(Below(random, other.size() + 1), 200),
                    random);
    }
    case 10:
      bytes.erase(Below(random, bytes.size() + 1), 1 + Below(random, 40));
      return;
    default:
      return ChangeHeader(bytes, random);
  }
}

/// The text that repairs are tried on is no file; what a long one may take is not known here.
void ShortenText(std::string& bytes) {
  constexpr std::size_t longest = 40000;
  const std::size_t first = bytes.find('\0');
  const std::size_t second = first == std::string::npos ? first : bytes.find('\0', first + 1);
  if (second != std::string::npos) bytes.resize(std::min(bytes.size(), second + longest));
}

std::uint64_t seed = 0;
const char* kind = "";

void Say(const char* what) {
  std::cerr << kind << ", seed " << seed << ": " << what << std::endl;
}

extern "C" void OnSignal(int number) {
  Say(number == SIGVTALRM ? "takes more than ten seconds" : "crashed");
  ::_exit(1);
}

#ifdef NDEBUG
constexpr double Longest = 1;
#else
constexpr double Longest = 8;
#endif

/// Whether it took no more than a second (in an optimised build) and its share of memory.
bool IsWithinBounds(const Kind& tried, const std::string& bytes) {
  constexpr itimerval tenSeconds{{0, 0}, {10, 0}};
  ::setitimer(ITIMER_VIRTUAL, &tenSeconds, nullptr);
  const std::int64_t before = taken;
  most = before;
  const std::clock_t start = std::clock();
  tried.Try(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  if (seconds > Longest) Say(("took " + std::to_string(seconds) + " s").c_str());
  const std::int64_t memory = most - before;
  const bool isSmall = memory <= 10 * static_cast<std::int64_t>(bytes.size()) + 50'000'000;
  if (!isSmall)
    Say((std::to_string(memory) + " bytes for " + std::to_string(bytes.size())).c_str());
  return seconds <= Longest && isSmall;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "Usage: broken_files SOURCE COUNT [SEED]\n";
    return 2;
  }
  std::vector<std::vector<std::string>> samples;
  std::vector<std::string> all;
  std::vector<std::size_t> choices;
  for (const Kind& one : Kinds) {
    samples.push_back(Samples(fs::path(argv[1]) / one.Samples));
    all.insert(all.end(), samples.back().begin(), samples.back().end());
    choices.insert(choices.end(), static_cast<std::size_t>(one.Weight), samples.size() - 1);
  }
  // What Qt says about broken pictures is no finding.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  for (const int number : {SIGABRT, SIGSEGV, SIGVTALRM})
    std::signal(number, OnSignal);
  const auto first = static_cast<std::uint64_t>(argc > 3 ? std::stoull(argv[3]) : 1);
  const auto count = std::stoull(argv[2]);
  const auto start = std::chrono::steady_clock::now();
  int findings = 0;
  for (seed = first; seed < first + count; ++seed) {
    Random random(seed);
    const std::size_t choice = choices[Below(random, choices.size())];
    kind = Kinds[choice].Name;
    std::string bytes = samples[choice][Below(random, samples[choice].size())];
    for (auto breaks = 1 + Below(random, 4); breaks > 0; --breaks)
      Break(bytes, all, random);
    if (Kinds[choice].Try == TryRepairs) ShortenText(bytes);
    if (const char* kept = std::getenv("ORB_KEEP_BROKEN"))
      std::ofstream(kept, std::ios::binary) << bytes;
    if (!IsWithinBounds(Kinds[choice], bytes)) ++findings;
  }
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
  std::cout << count << " broken files from seed " << first << ", " << findings << " findings, "
            << static_cast<int>(took.count()) << " s\n";
  return findings == 0 ? 0 : 1;
}
