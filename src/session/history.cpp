#include "session/history.h"

#include "session/queries.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace orb::session {
namespace {

std::size_t SizeOf(const std::string& text) {
  return sizeof(std::string) + text.capacity();
}

std::size_t SizeOf(const model::Unit& unit) {
  return SizeOf(unit.Location) + SizeOf(unit.Status) + SizeOf(unit.DislodgedFrom) +
         SizeOf(unit.PreviousLocation);
}

std::size_t SizeOf(const model::ProvinceState& province) {
  return SizeOf(province.Owner) + SizeOf(province.PreviousOwner);
}

std::size_t SizeOf(const ReportNote& note) {
  return SizeOf(note.Reason) + SizeOf(note.Otherwise);
}

std::size_t SizeOf(const Difference& difference) {
  return SizeOf(difference.Text) + SizeOf(difference.Here) + SizeOf(difference.There);
}

std::size_t SizeOfAll(const auto& rows) {
  return std::accumulate(rows.begin(), rows.end(), std::size_t{0},
                         [](std::size_t sum, const auto& row) { return sum + SizeOf(row); });
}

/// About how many bytes it takes: all that a file can make long is counted.
std::size_t SizeOf(const Situation& situation) {
  const model::GameState& game = situation.Game;
  return sizeof(situation) + SizeOf(game.Title) + SizeOfAll(game.Units) +
         SizeOfAll(game.Provinces) + SizeOfAll(game.TextLines) + SizeOfAll(game.ReportLines) +
         SizeOfAll(game.OrdersList) + SizeOfAll(game.RetreatsList) +
         SizeOfAll(game.AdjustmentsList) + SizeOfAll(situation.Notes) +
         SizeOfAll(situation.Differences) +
         situation.Outcomes.size() * sizeof(orders::OrderOutcome);
}

}  // namespace

void History::Record(StepName name, Situation before) {
  future_.clear();
  const std::size_t size = SizeOf(before);
  past_.push_back({std::move(name), number_++, std::move(before), size});
  std::size_t all = 0;
  for (const Step& step : past_)
    all += step.Size;
  // The last step can be taken back whatever it takes.
  for (; all > bound_ && past_.size() > 1; past_.pop_front())
    all -= past_.front().Size;
}

void History::Move(Steps& from, Steps& to, Situation present) {
  Step step = std::move(from.back());
  from.pop_back();
  step.There = std::move(present);
  step.Size = SizeOf(step.There);
  to.push_back(std::move(step));
}

void History::ForEach(const std::function<void(Situation&)>& change) {
  for (Steps* steps : {&past_, &future_}) {
    for (Step& step : *steps)
      change(step.There);
  }
}

const History::Step* History::LeftBehind() const {
  const auto step = std::find_if(past_.rbegin(), past_.rend(), [](const Step& past) {
    return past.Name.Kind == StepKind::Another && HasUnsavedWork(past.There);
  });
  return step == past_.rend() ? nullptr : &*step;
}

}  // namespace orb::session
