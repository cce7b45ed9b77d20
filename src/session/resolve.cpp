#include "adjudication/explain.h"
#include "adjudication/outcomes.h"
#include "adjudication/participants.h"
#include "adjudication/stages.h"
#include "session/commands.h"

#include <algorithm>

namespace orb::session {
namespace {

void AddMissing(const std::vector<std::string>& texts, std::vector<std::string>& all) {
  for (const std::string& text : texts) {
    if (std::ranges::find(all, text) == all.end()) all.push_back(text);
  }
}

/// The later stages of a season write on in the report of the moves, and so do their notes.
void AddNotes(const adjudication::Resolution& resolution, Situation& situation) {
  std::vector<ReportNote>& notes = situation.Notes;
  const std::vector<std::string> reasons = adjudication::ExplainReport(situation.Game, resolution);
  const auto participants = adjudication::ReportParticipants(situation.Game, resolution);
  notes.resize(reasons.size());
  for (std::size_t i = 0; i < reasons.size(); ++i) {
    if (!notes[i].Reason.empty() && !reasons[i].empty()) notes[i].Reason += ' ';
    notes[i].Reason += reasons[i];
    AddMissing(participants[i], notes[i].Locations);
  }
  for (const adjudication::ReportEntry& entry : resolution.Entries) {
    if (entry.Order != 0 && resolution.Orders[entry.Order].Failed) {
      notes.at(static_cast<std::size_t>(entry.Line - 1)).Failed = true;
    }
  }
}

void AddOutcomes(const adjudication::Resolution& resolution, Situation& situation) {
  const std::vector<orders::OrderOutcome> outcomes = adjudication::Outcomes(resolution);
  situation.Outcomes.insert(situation.Outcomes.end(), outcomes.begin(), outcomes.end());
}

/// Hands messages on and keeps the last warning that was answered No.
class DeclinedWarning : public model::Messages {
 public:
  explicit DeclinedWarning(model::Messages& messages) : messages_(messages) {}

  bool Warn(const std::string& text) override {
    const bool goesOn = messages_.Warn(text);
    if (!goesOn) text_ = text;
    return goesOn;
  }
  model::Answer Ask(const std::string& text) override { return messages_.Ask(text); }
  void Show(const std::string& text, model::Icon icon) override { messages_.Show(text, icon); }

  /// Whether it was about this order, or, of two that clash, the latter.
  bool IsAbout(const orders::OrderLine& order) const {
    return text_.starts_with("Warning: " + order.Text + "\r") ||
           text_.find(" clashes with " + order.Text + "\r") != std::string::npos;
  }

 private:
  model::Messages& messages_;
  std::string text_;
};

/// Of equal lines the last one that was judged is meant.
std::optional<StoppedLine> FindStoppedLine(const adjudication::Resolution& resolution,
                                           const DeclinedWarning& declined) {
  if (resolution.Completed) return {};
  for (int k = resolution.Orders.Count(); k >= 1; --k) {
    const orders::OrderLine& order = resolution.Orders[k];
    if (order.Failed && declined.IsAbout(order)) return StoppedLine{k - 1, order.Result};
  }
  return {};
}

}  // namespace

bool Resolve(Situation& situation, model::Messages& messages, Noting noting) {
  DeclinedWarning asked(messages);
  const adjudication::Resolution resolution =
      adjudication::ResolveStageInPlace(situation.Game, asked);
  situation.Stopped = FindStoppedLine(resolution, asked);
  if (!resolution.Completed) return false;
  if (resolution.Stage == adjudication::ResolvedStage::Moves) {
    situation.Notes.clear();
    situation.Outcomes.clear();
  }
  if (noting == Noting::Full) {
    AddNotes(resolution, situation);
    AddOutcomes(resolution, situation);
  }
  return true;
}

}  // namespace orb::session
