#pragma once

#include "session/what_if.h"

#include <QObject>
#include <QString>

#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace orb::ui {

/// Searches the pairs of changes of one power while the window goes on. One search at a time.
class PairSearch : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  /// Searches those that would have changed this order; a search under way is given up.
  void start(std::shared_ptr<const session::Situation> before, std::string order,
             std::string power);

  /// Ends the search, which tells what it has found so far.
  void cancel() { m_worker.request_stop(); }

  /// Ends the search, and nothing is told any more.
  void giveUp();

 signals:
  void progress(int done, int all);
  /// The search is over; `whole`: to its end.
  void found(const std::vector<session::Alternative>& pairs, bool whole);
  void failed(const QString& reason);

 private:
  /// Runs in the worker's thread.
  void search(const std::stop_token& stop, int number, const session::Situation& before,
              const std::string& order, const std::string& power);
  /// Does something in the window's thread, unless the search has been given up meanwhile.
  template <class Work>
  void tell(int number, Work work);

  int m_number = 0;  ///< of the search whose news are wanted
  std::jthread m_worker;
};

}  // namespace orb::ui
