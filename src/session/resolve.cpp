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

}  // namespace

bool Resolve(Situation& situation, model::Messages& messages, Noting noting) {
  const adjudication::Resolution resolution = adjudication::ResolveStage(situation.Game, messages);
  situation.Stopped.reset();
  if (const int k = resolution.StoppedAt; k != 0) {
    situation.Stopped = StoppedLine{k - 1, resolution.Orders[k].Result};
  }
  if (!resolution.Completed) return false;
  if (resolution.Stage == model::Stage::Moves) {
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
