#include "ui/window_fixture.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orb::tests {
namespace {

using testing::Contains;
using testing::ElementsAre;

using CompletionTest = WindowTest;

TEST_F(CompletionTest, OrdersAreCompletedFromWhatIsPossible) {
  auto& box = Find<QLineEdit>("txtOrder");
  QAbstractItemView& popup = *box.findChild<QCompleter*>()->popup();
  const auto offered = [&] {
    std::vector<std::string> lines;
    const QAbstractItemModel& model = *popup.model();
    for (int row = 0; row < model.rowCount(); ++row)
      lines.push_back(model.index(row, 0).data().toString().toStdString());
    return lines;
  };
  QTest::keyClicks(&box, QStringLiteral("f lo"));
  EXPECT_THAT(offered(), ElementsAre("ENG F(Lon) "));
  QTest::keyClick(&popup, Qt::Key_Tab);
  EXPECT_EQ(box.text(), QLatin1String("ENG F(Lon) "));
  EXPECT_THAT(offered(), Contains("ENG F(Lon) hold"));
  QTest::keyClicks(&box, QStringLiteral("- "));
  EXPECT_THAT(offered(), ElementsAre("ENG F(Lon) - Wal", "ENG F(Lon) - Yor", "ENG F(Lon) - ECH",
                                     "ENG F(Lon) - NTH"));
  QTest::keyClicks(&box, QStringLiteral("n"));
  EXPECT_THAT(offered(), ElementsAre("ENG F(Lon) - NTH"));
  QTest::keyClick(&popup, Qt::Key_Down);
  QTest::keyClick(&popup, Qt::Key_Return);
  EXPECT_THAT(Lines("lstOrders"), ElementsAre("ENG F(Lon) - NTH"));
  EXPECT_TRUE(box.text().isEmpty());
  // What nothing fits is filed as it stands, and Esc closes the offers before it empties the box.
  QTest::keyClicks(&box, QStringLiteral("FRA A(Par)"));
  EXPECT_TRUE(popup.isVisible());
  QTest::keyClick(&popup, Qt::Key_Escape);
  EXPECT_FALSE(popup.isVisible());
  EXPECT_EQ(box.text(), QLatin1String("FRA A(Par)"));
  QTest::keyClick(&box, Qt::Key_Return);
  EXPECT_THAT(Lines("lstOrders"), ElementsAre("ENG F(Lon) - NTH", "FRA A(Par)"));
}

}  // namespace
}  // namespace orb::tests
