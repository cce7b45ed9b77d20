#include "ui/session/situation.h"

#include "adjudication/explain.h"
#include "adjudication/outcomes.h"
#include "adjudication/participants.h"
#include "adjudication/stages.h"
#include "model/files.h"
#include "model/game_file.h"
#include "model/map_files.h"
#include "model/new_game.h"
#include "orders/entered_orders.h"
#include "settings/settings_file.h"

#include <algorithm>

namespace orb::ui {
namespace {

void addMissing(const std::vector<std::string>& texts, std::vector<std::string>& all) {
  for (const std::string& text : texts) {
    if (std::find(all.begin(), all.end(), text) == all.end()) all.push_back(text);
  }
}

/// The later stages of a season write on in the report of the moves, and so do their notes.
void addNotes(const adjudication::Resolution& resolution, Situation& situation) {
  std::vector<ReportNote>& notes = situation.reportNotes;
  if (resolution.Stage == adjudication::ResolvedStage::Moves) {
    notes.clear();
    situation.outcomes.clear();
  }
  const std::vector<std::string> reasons = adjudication::ExplainReport(situation.game, resolution);
  const auto participants = adjudication::ReportParticipants(situation.game, resolution);
  notes.resize(reasons.size());
  for (std::size_t i = 0; i < reasons.size(); ++i) {
    if (!notes[i].reason.empty() && !reasons[i].empty()) notes[i].reason += ' ';
    notes[i].reason += reasons[i];
    addMissing(participants[i], notes[i].locations);
  }
  for (const adjudication::ReportEntry& entry : resolution.Entries) {
    if (entry.Order != 0 && resolution.Orders[entry.Order].Failed) {
      notes.at(static_cast<std::size_t>(entry.Line - 1)).failed = true;
    }
  }
}

void readSettings(const Places& places, Situation& situation) {
  settings::Settings settings{situation.mapOptions, situation.viewOnly};
  settings::ReadSettingsFile(settings::SettingsFileForReading(places.program, places.config),
                             settings, situation.game.Countries);
  situation.mapOptions = settings.Map;
  situation.viewOnly = settings.ViewOnly;
}

/// Hands messages on and keeps the last warning that was answered No.
class DeclinedWarning : public model::Messages {
 public:
  explicit DeclinedWarning(model::Messages& messages) : m_messages(messages) {}

  bool Warn(const std::string& text) override {
    const bool goesOn = m_messages.Warn(text);
    if (!goesOn) m_text = text;
    return goesOn;
  }
  model::Answer Ask(const std::string& text) override { return m_messages.Ask(text); }
  void Show(const std::string& text, model::Icon icon) override { m_messages.Show(text, icon); }

  /// Whether it was about this order, or, of two that clash, the latter.
  bool isAbout(const orders::OrderLine& order) const {
    return m_text.starts_with("Warning: " + order.Text + "\r") ||
           m_text.find(" clashes with " + order.Text + "\r") != std::string::npos;
  }

 private:
  model::Messages& m_messages;
  std::string m_text;
};

/// Of equal lines the last one that was judged is meant.
std::optional<StoppedLine> findStoppedLine(const adjudication::Resolution& resolution,
                                           const DeclinedWarning& declined) {
  for (int k = resolution.Orders.Count(); k >= 1; --k) {
    const orders::OrderLine& order = resolution.Orders[k];
    if (order.Failed && declined.isAbout(order)) return StoppedLine{k - 1, order.Result};
  }
  return {};
}

}  // namespace

Situation startSituation(const Places& places, const std::filesystem::path& gameFile,
                         model::Messages& messages) {
  Situation situation;
  situation.game = model::EmptyGame(model::LoadMap(places.program));
  readSettings(places, situation);
  if (gameFile.empty()) {
    model::NewGame(situation.game, places.program);
  } else {
    model::ReadGameFile(situation.game, model::FileInAnyCase(gameFile), places.program, messages);
  }
  return situation;
}

std::vector<orders::OrderOutcome> shownOrders(const Situation& situation) {
  if (!situation.showOrders) return {};
  std::vector<orders::OrderOutcome> shown = situation.outcomes;
  const std::vector<orders::OrderOutcome> entered = orders::EnteredOrders(situation.game);
  shown.insert(shown.end(), entered.begin(), entered.end());
  return shown;
}

void resolveStage(Situation& situation, model::Messages& messages) {
  DeclinedWarning asked(messages);
  const adjudication::Resolution resolution = adjudication::ResolveStage(situation.game, asked);
  situation.stoppedLine = findStoppedLine(resolution, asked);
  if (!resolution.Completed) return;
  addNotes(resolution, situation);
  const std::vector<orders::OrderOutcome> outcomes = adjudication::Outcomes(resolution);
  situation.outcomes.insert(situation.outcomes.end(), outcomes.begin(), outcomes.end());
}

}  // namespace orb::ui
