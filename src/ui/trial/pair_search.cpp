#include "ui/trial/pair_search.h"

#include "ui/session/attempt.h"
#include "ui/widgets/message_boxes.h"

#include <exception>
#include <utility>

namespace orb::ui {

void PairSearch::start(std::shared_ptr<const session::Situation> before, std::string order,
                       std::string power) {
  giveUp();
  m_worker =
      std::jthread([this, number = m_number, before = std::move(before), order = std::move(order),
                    power = std::move(power)](const std::stop_token& stop) {
        search(stop, number, *before, order, power);
      });
}

void PairSearch::giveUp() {
  ++m_number;
  m_worker.request_stop();
}

template <class Work>
void PairSearch::tell(int number, Work work) {
  QMetaObject::invokeMethod(
      this,
      [this, number, work = std::move(work)] {
        if (number == m_number) work();
      },
      Qt::QueuedConnection);
}

void PairSearch::search(const std::stop_token& stop, int number, const session::Situation& before,
                        const std::string& order, const std::string& power) {
  try {
    const auto goOn = [&](int done, int all) {
      tell(number, [this, done, all] { emit progress(done, all); });
      return !stop.stop_requested();
    };
    auto pairs = session::PairsOfChanges(session::Ask(before, order), power, goOn);
    tell(number, [this, pairs = std::move(pairs), whole = !stop.stop_requested()] {
      emit found(pairs, whole);
    });
  } catch (...) {
    tell(number, [this, reason = displayText(sentenceOf(std::current_exception()))] {
      emit failed(reason);
    });
  }
}

}  // namespace orb::ui
