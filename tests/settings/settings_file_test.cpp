#include "settings/settings_file.h"

#include "model/errors.h"
#include "model/files.h"
#include "settings/map_options.h"
#include "support/directories.h"

#include <gtest/gtest.h>

namespace orb::tests {
namespace {

namespace fs = std::filesystem;

using settings::MapMode;
using settings::Settings;

/// Settings before a file is read, each unlike what an empty text would make of it, and colours
/// 1, 101, 2, 102 and so on.
struct Kept {
  Settings Shown = {{MapMode::Grey, true, true, true}, true};
  model::CountryTable Countries = model::FixedCountries();

  Kept() {
    for (int i = 1; i <= model::CountryCount; ++i) {
      Countries[i].Colour = static_cast<model::Colour>(i);
      Countries[i].TextColour = static_cast<model::Colour>(100 + i);
    }
  }
};

TEST(Settings, WritesEachRecordOnALine) {
  const std::string colours =
      "1,101\r\n2,102\r\n3,103\r\n4,104\r\n5,105\r\n6,106\r\n7,16777215\r\n";
  Kept kept;
  kept.Countries[7].TextColour = 0xFFFFFF;
  EXPECT_EQ(
      FormatSettings(kept.Shown, kept.Countries),
      "\"Grey\"\r\n\"Show centre count\"\r\n\"Show centre owners\"\r\n\"View only\"\r\n" + colours);
  // The toggle for centre owners is not what the third record tells of.
  kept.Shown = {{MapMode::Colour3D, false, false, true}, false};
  EXPECT_EQ(FormatSettings(kept.Shown, kept.Countries),
            "\"Colour 3D\"\r\n\"Don't show centre count\"\r\n\"Don't show centre owners\"\r\n"
            "\"Edit\"\r\n" +
                colours);
}

/// "Grey count borders owners view 1,101 2,102": what is on, and the colours of the first two.
std::string Told(const Kept& kept) {
  const std::string file = FormatSettings(kept.Shown, kept.Countries);
  std::string text = file.substr(1, file.find('"', 1) - 1);
  const settings::MapOptions& map = kept.Shown.Map;
  text.append(map.ShowCentreCount ? " count" : "");
  text.append(map.ColourBordersByOwner ? " borders" : "");
  text.append(map.ShowCentreOwners ? " owners" : "").append(kept.Shown.ViewOnly ? " view" : "");
  for (const int i : {1, 2}) {
    const model::Country& country = kept.Countries[i];
    text.append(" ").append(std::to_string(country.Colour));
    text.append(",").append(std::to_string(country.TextColour));
  }
  return text;
}

TEST(Settings, ShortAndBrokenFilesLeaveWhatWasNotRead) {
  const std::string three = "\"Colour\"\n\"x\"\n\"Show centre owners\"\n";
  const std::string edit = three + "\"Edit\"\n";
  const std::vector<std::pair<std::string, std::string_view>> cases = {
      {"", "Grey count borders view 1,101 2,102"},
      {"\"Colour", "Grey count borders view 1,101 2,102"},
      {"\"Colour 3D\"", "Colour 3D count borders view 1,101 2,102"},
      {"colour\r\n\"Don't show centre count\"\r\n", "Black/white borders view 1,101 2,102"},
      {"Grey\nShow centre count\n\"View", "Grey count borders view 1,101 2,102"},
      {three, "Colour borders 1,101 2,102"},
      {three + " \r\n \n", "Colour borders 1,101 2,102"},
      {three + "\"View only\"\n", "Colour borders view 1,101 2,102"},
      {edit + "16711680,255\n65280,", "Colour borders 16711680,255 2,102"},
      {edit + "9,8\n7,-1\n5,6\n", "Colour borders 9,8 2,102"},
      {edit + "9,16777216\n7,8\n", "Colour borders 1,101 2,102"},
      {edit + "9,8\n\"red\",8\n", "Colour borders 9,8 2,102"},
      {edit + "9,8\n99999999999999999999,8\n", "Colour borders 9,8 2,102"}};
  for (const auto& [bytes, expected] : cases) {
    Kept kept;
    ReadSettings(bytes, kept.Shown, kept.Countries);
    EXPECT_EQ(Told(kept), expected) << bytes;
  }
}

TEST(Settings, LieBesideTheProgramWhereThatIsAllowed) {
  const TemporaryDirectory program;
  const TemporaryDirectory home;
  const fs::path beside = program.Path() / "orb.ini";
  const fs::path user = home.Path() / "new" / "orb" / "orb.ini";
  const auto forReading = [&] {
    return settings::SettingsFileForReading(program.Path(), user.parent_path());
  };
  const auto forWriting = [&] {
    return settings::SettingsFileForWriting(program.Path(), user.parent_path());
  };
  EXPECT_EQ(forWriting(), beside);
  // No ordinary file: permissions would not stop a superuser.
  fs::create_directory(beside);
  EXPECT_EQ(forWriting(), user);
  EXPECT_EQ(forReading(), beside);
  const Kept kept;
  Kept read;
  read.Shown = {};
  ReadSettingsFile(beside, read.Shown, read.Countries);
  WriteSettingsFile(user, kept.Shown, kept.Countries);
  EXPECT_EQ(forReading(), user);
  ReadSettingsFile(user, read.Shown, read.Countries);
  EXPECT_EQ(FormatSettings(read.Shown, read.Countries), model::ReadFile(user));
  EXPECT_TRUE(read.Shown.ViewOnly);
  EXPECT_THROW(WriteSettingsFile(beside, kept.Shown, kept.Countries), model::FileError);
  fs::remove(beside);
  WriteSettingsFile(beside, kept.Shown, kept.Countries);
  EXPECT_EQ(forWriting(), beside);
}

}  // namespace
}  // namespace orb::tests
