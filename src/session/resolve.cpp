#include "adjudication/outcomes.h"
#include "adjudication/participants.h"
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
  const std::vector<std::string> reasons = Reasons(situation.Rules, situation.Game, resolution);
  const auto participants = adjudication::ReportParticipants(situation.Game, resolution);
  notes.resize(reasons.size());
  for (std::size_t i = 0; i < reasons.size(); ++i) {
    if (!notes[i].Reason.empty() && !reasons[i].empty()) notes[i].Reason += ' ';
    notes[i].Reason += reasons[i];
    AddMissing(participants[i], notes[i].Locations);
  }
  for (const adjudication::ReportEntry& entry : resolution.Entries) {
    if (entry.Order == 0) continue;
    const orders::OrderLine& order = resolution.Orders[entry.Order];
    ReportNote& note = notes.at(static_cast<std::size_t>(entry.Line - 1));
    note.Failed = note.Failed || order.Failed;
    const bool moves = resolution.Stage == model::Stage::Moves;
    if (moves && order.UnitIndex != 0) note.Order = order.Text;
  }
}

void AddOutcomes(const adjudication::Resolution& resolution, Situation& situation) {
  const std::vector<orders::OrderOutcome> outcomes = adjudication::Outcomes(resolution);
  situation.Outcomes.insert(situation.Outcomes.end(), outcomes.begin(), outcomes.end());
}

/// The lines of the report that tell of orders which the other rules decide otherwise.
void AddDifferences(const model::GameState& before, const adjudication::Resolution& resolution,
                    Situation& situation) {
  std::vector<ReportNote>& notes = situation.Notes;
  notes.resize(static_cast<std::size_t>(situation.Game.ReportLines.Count()));
  for (Difference& difference : Compare(situation.Rules, before, situation.Game, resolution)) {
    if (difference.Line != 0) {
      std::string& otherwise = notes.at(static_cast<std::size_t>(difference.Line - 1)).Otherwise;
      otherwise.append(otherwise.empty() ? "" : " ").append(difference.There);
    }
    situation.Differences.push_back(std::move(difference));
  }
}

/// The situation without what it knows of an earlier one.
std::shared_ptr<const Situation> Kept(const Situation& situation) {
  auto kept = std::make_shared<Situation>(situation);
  kept->BeforeMoves.reset();
  return kept;
}

/// A season's report begins with its moves, and so does what is known of it.
void ForgetReport(Situation& situation) {
  situation.Notes.clear();
  situation.Outcomes.clear();
  situation.Differences.clear();
  situation.BeforeMoves.reset();
  situation.ByUsualRules = false;
}

}  // namespace

bool Resolve(Situation& situation, model::Messages& messages, Noting noting, Comparing comparing) {
  std::shared_ptr<const Situation> before;
  if (noting == Noting::Full || comparing == Comparing::Yes) before = Kept(situation);
  const adjudication::Resolution resolution =
      ResolveStage(situation.Rules, situation.Game, messages);
  situation.Stopped.reset();
  if (const int k = resolution.StoppedAt; k != 0) {
    situation.Stopped = StoppedLine{k - 1, resolution.Orders[k].Result};
  }
  if (!resolution.Completed) return false;
  if (resolution.Stage == model::Stage::Moves) ForgetReport(situation);
  situation.ResolvedBy = situation.Rules;
  if (situation.Rules == Rules::Usual) situation.ByUsualRules = true;
  if (noting == Noting::Full) {
    AddNotes(resolution, situation);
    if (resolution.Stage == model::Stage::Moves) situation.BeforeMoves = before;
  }
  if (noting != Noting::None) AddOutcomes(resolution, situation);
  if (comparing == Comparing::Yes) AddDifferences(before->Game, resolution, situation);
  return true;
}

void SetRules(Situation& situation, Rules rules) {
  situation.Rules = rules;
}

}  // namespace orb::session
