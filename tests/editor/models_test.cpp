#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStringList>
#include <memory>

#include "editor/controls/findings_view.h"
#include "editor/dialogs/compare_view.h"
#include "editor/models/bot_places_model.h"
#include "editor/models/differences_model.h"
#include "editor/models/findings_model.h"
#include "session/presets.h"
#include "tests/support/ids.h"

namespace fragsmith {
namespace {

using testing::ElementsAre;

constexpr auto kFatal = QAbstractItemModelTester::FailureReportingMode::Fatal;

/// What a model tells its views: "insert 2-3", "remove 0-0", "change 1-1".
class Heard {
 public:
  explicit Heard(const QAbstractItemModel& model) {
    const auto note = [this](const char* what) {
      return [this, what](const QModelIndex&, int first, int last) {
        Add(what, first, last);
      };
    };
    QObject::connect(&model, &QAbstractItemModel::rowsInserted, &receiver_,
                     note("insert"));
    QObject::connect(&model, &QAbstractItemModel::rowsRemoved, &receiver_,
                     note("remove"));
    QObject::connect(&model, &QAbstractItemModel::dataChanged, &receiver_,
                     [this](const QModelIndex& first, const QModelIndex& last) {
                       Add("change", first.row(), last.row());
                     });
    QObject::connect(
        &model, &QAbstractItemModel::rowsMoved, &receiver_,
        [this](const QModelIndex&, int from, int, const QModelIndex&, int to) {
          Add("move", from, to);
        });
    QObject::connect(&model, &QAbstractItemModel::modelReset, &receiver_,
                     [this] { Add("reset", 0, 0); });
  }

  std::vector<std::string> Take() { return std::exchange(told_, {}); }

 private:
  void Add(const std::string& what, int first, int last) {
    told_.push_back(what + ' ' + std::to_string(first) + '-' +
                    std::to_string(last));
  }

  QObject receiver_;
  std::vector<std::string> told_;
};

Finding MakeFinding(std::string_view id, int line, const char* text = "") {
  Finding finding = {.id = id, .text = text};
  finding.place = ChatPlace{.type = TypeAt(1), .line = ChatLineIndex(line)};
  return finding;
}

/// So many of different kinds, the first ones left out.
std::vector<Finding> ManyFindings(std::size_t from) {
  static const std::vector<std::string> kIds = [] {
    std::vector<std::string> ids(100);
    for (std::size_t id = 0; id < ids.size(); ++id) {
      ids[id] = std::to_string(id);
    }
    return ids;
  }();
  std::vector<Finding> findings;
  for (std::size_t place = from; place < kIds.size(); ++place) {
    findings.push_back(MakeFinding(kIds[place], 0, kIds[place].c_str()));
  }
  return findings;
}

template <typename View>
void Show(View& view) {
  view.resize(900, 150);
  view.show();
  QCoreApplication::processEvents();
}

TEST(FindingsModelTest, TellsOnlyWhatBecameDifferent) {
  FindingsModel model;
  const QAbstractItemModelTester tester(&model, kFatal);
  Heard heard(model);
  std::vector<Finding> findings = {MakeFinding("a", 0), MakeFinding("b", 0),
                                   MakeFinding("b", 0), MakeFinding("c", 4)};
  model.ShowFindings(findings);
  EXPECT_THAT(heard.Take(), ElementsAre("insert 0-3"));
  model.ShowFindings(findings);
  EXPECT_THAT(heard.Take(), ElementsAre());

  const QPersistentModelIndex second(model.index(2));
  findings[2].text = "other words";
  findings.erase(findings.begin());
  findings.push_back(MakeFinding("d", 0));
  model.ShowFindings(findings);
  EXPECT_THAT(heard.Take(),
              ElementsAre("remove 0-0", "change 1-1", "insert 3-3"));
  EXPECT_EQ(second.row(), 1);
  EXPECT_TRUE(second.data().toString().contains("other words"));

  // What has become graver stands further up.
  std::swap(findings[0], findings[2]);
  findings[0].severity = Severity::kError;
  model.ShowFindings(findings);
  EXPECT_EQ(model.At(0).id, "c");
  EXPECT_EQ(second.row(), 2);
}

TEST(FindingsModelTest, FoldsAKindIntoOneRowAndCountsIt) {
  FindingsModel model;
  const QAbstractItemModelTester tester(&model, kFatal);
  std::vector<Finding> findings = {MakeFinding("x", 0)};
  for (int line = 0; line < 4; ++line) {
    findings.push_back(MakeFinding("many", line));
  }
  model.ShowFindings(findings);
  EXPECT_EQ(model.rowCount({}), 2);
  EXPECT_EQ(model.Find(findings[3]).row(), 1);
  Heard heard(model);
  findings.erase(findings.begin() + 1);
  model.ShowFindings(findings);
  EXPECT_THAT(heard.Take(), ElementsAre("change 1-1"));
  EXPECT_TRUE(
      model.index(1).data().toString().endsWith("(And 2 more of this kind.)"));

  model.Fold("many", false);
  EXPECT_EQ(model.rowCount({}), 4);
  EXPECT_EQ(model.Find(findings[2]).row(), 2);
  model.Fold("many", true);
  EXPECT_EQ(model.rowCount({}), 2);
  // Too few of them to stand in one row.
  findings.pop_back();
  model.ShowFindings(findings);
  EXPECT_EQ(model.rowCount({}), 3);
}

TEST(FindingsViewTest, StaysWhereItIsWhileRowsComeAndGoAboveIt) {
  FindingsView view;
  view.ShowFindings(ManyFindings(10));
  Show(view);
  const auto select = [&view](int row) {
    view.setCurrentIndex(view.model()->index(row, 0));
  };
  select(50);
  view.scrollTo(view.currentIndex(), QAbstractItemView::PositionAtCenter);
  const int top = view.visualRect(view.currentIndex()).top();
  ASSERT_GT(top, 0);
  for (const std::size_t first : {0U, 30U, 30U, 5U}) {
    view.ShowFindings(ManyFindings(first));
    QCoreApplication::processEvents();
    EXPECT_EQ(view.Selected()->text, "60");
    EXPECT_EQ(view.selectionModel()->selectedRows().value(0).row(),
              60 - static_cast<int>(first));
    EXPECT_EQ(view.visualRect(view.currentIndex()).top(), top) << first;
  }

  // The finding goes: nothing was chosen in its place.
  QSignalSpy shown(&view, &FindingsView::SelectionShown);
  view.ShowFindings(ManyFindings(61));
  EXPECT_EQ(shown.size(), 1);
  EXPECT_EQ(view.Selected(), nullptr);
  EXPECT_FALSE(view.selectionModel()->hasSelection());

  // At the top, what is new there is seen.
  view.scrollToTop();
  view.ShowFindings(ManyFindings(0));
  EXPECT_EQ(view.verticalScrollBar()->value(), 0);
}

TEST(FindingsViewTest, ShowsTheWholeTextOfAButton) {
  FindingsView view;
  Finding finding = MakeFinding("a", 0, "Some words.");
  finding.mends.push_back(
      {.title = "Set \"Reaction time\" to 1 wherever it is more than that",
       .apply = {}});
  view.ShowFindings({finding});
  Show(view);
  const QFontMetrics metrics = view.fontMetrics();
  const QModelIndex first = view.model()->index(0, 0);
  const QString text = first.data(FindingsModel::kMendTextRole).toString();
  int last_height = 0;
  for (const int letters : {90, 30, 20}) {
    view.resize(letters * metrics.averageCharWidth(), 400);
    QCoreApplication::processEvents();
    QStyleOptionViewItem row;
    row.rect = view.visualRect(first);
    row.fontMetrics = metrics;
    row.decorationSize = view.iconSize();
    EXPECT_LE(row.rect.width(), view.viewport()->width());
    const auto& delegate =
        static_cast<const FindingDelegate&>(*view.itemDelegate());
    const QRect button = delegate.ButtonIn(row, first);
    EXPECT_TRUE(row.rect.contains(button)) << letters;
    const QRect lines =
        metrics.boundingRect(QRect(0, 0, button.width() - metrics.height(), 0),
                             Qt::TextWordWrap, text);
    EXPECT_LE(lines.width(), button.width());
    EXPECT_LT(lines.height(), button.height());
    EXPECT_GT(button.height(), last_height);
    // Above it there is room for the words.
    EXPECT_GE(button.top() - row.rect.top(), metrics.height());
    last_height = button.height();
  }
}

class Differences : public testing::Test {
 protected:
  Differences() {
    for (int line = 0; line < 40; ++line) {
      other_.SetChatLine(TypeAt(3), ChatLineIndex(line),
                         "theirs " + std::to_string(line));
    }
    SetTheirs(402, 0.5);
    SetTheirs(502, 1.0);
    SetTheirs(44, 300.0);
  }

  void SetTheirs(int parameter, double value) {
    ASSERT_TRUE(other_.SetParameter(Id(parameter), value));
  }

  static QModelIndex Find(const QAbstractItemModel& model, const char* text) {
    return model
        .match(model.index(0, 0), Qt::DisplayRole, QLatin1String(text), 1,
               Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
  }

  Bot bot_ = CreateZeroBot();
  Bot other_ = bot_;
};

TEST_F(Differences, KeepTheirRowsThroughEveryEdit) {
  DifferencesModel model(other_, QStringLiteral("Other"));
  DifferencesFilter filter(model);
  const QAbstractItemModelTester tester(&model, kFatal);
  const QAbstractItemModelTester filter_tester(&filter, kFatal);
  model.ShowBot(bot_);
  EXPECT_EQ(filter.rowCount(), 3);

  Heard heard(model);
  model.ShowBot(bot_);
  EXPECT_THAT(heard.Take(), ElementsAre());
  const QPersistentModelIndex fifth(Find(filter, "Line 5"));
  bot_.SetChatLine(TypeAt(3), ChatLineIndex(0), "theirs 0");
  bot_.SetChatLine(TypeAt(3), ChatLineIndex(1), "mine");
  ASSERT_TRUE(bot_.SetParameter(Id(402), 0.5));
  model.ShowBot(bot_);
  EXPECT_EQ(fifth.sibling(fifth.row(), 2).data().toString(), "theirs 4");
  EXPECT_FALSE(Find(filter, "Attack skill, level 4").isValid());

  ASSERT_TRUE(bot_.SetParameter(Id(502), 1.0));
  model.ShowBot(bot_);
  EXPECT_FALSE(Find(filter, "General characteristics").isValid());
  filter.SetOnlyDifferences(false);
  EXPECT_TRUE(Find(filter, "Attack skill, level 4").isValid());
  filter.SetOnlyDifferences(true);
  EXPECT_TRUE(fifth.isValid());
  model.ShowBot(other_);
  EXPECT_EQ(filter.rowCount(), 0);
  model.ShowBot(bot_);
  EXPECT_EQ(filter.rowCount(), 2);
}

TEST_F(Differences, StayWhereTheyAreWhileRowsComeAndGoAboveThem) {
  CompareView view(other_, QStringLiteral("Other"), nullptr);
  view.ShowBot(bot_);
  Show(view);
  const auto find = [&view](const char* text) {
    return Find(*view.model(), text);
  };
  const auto current = [&view] {
    return view.currentIndex().data().toString().toStdString();
  };
  view.setCurrentIndex(find("Line 20"));
  view.selectionModel()->select(
      find("Gauntlet usage"),
      QItemSelectionModel::Select | QItemSelectionModel::Rows);
  view.scrollTo(view.currentIndex(), QAbstractItemView::PositionAtCenter);
  const int top = view.visualRect(view.currentIndex()).top();
  const auto expect_in_place = [&] {
    QCoreApplication::processEvents();
    EXPECT_EQ(current(), "Line 20");
    EXPECT_EQ(view.Selected().size(), 2);
    EXPECT_EQ(view.visualRect(view.currentIndex()).top(), top);
  };
  Bot edited = bot_;
  ASSERT_TRUE(edited.SetParameter(Id(402), 0.5));
  ASSERT_TRUE(edited.SetParameter(Id(502), 1.0));
  view.ShowBot(edited);
  expect_in_place();
  view.ShowBot(bot_);
  expect_in_place();
  view.SetOnlyDifferences(false);
  expect_in_place();
  view.SetOnlyDifferences(true);
  expect_in_place();

  // What was closed stays so, and what comes back is open.
  view.collapse(find("Chat texts"));
  view.ShowBot(edited);
  view.ShowBot(bot_);
  EXPECT_FALSE(view.isExpanded(find("Chat texts")));
  EXPECT_TRUE(view.isExpanded(find("General characteristics")));
  EXPECT_TRUE(view.isFirstColumnSpanned(0, {}));

  // The last row of all goes, and then the others.
  view.setCurrentIndex(find("Gauntlet usage"));
  view.collapse(find("General characteristics"));
  view.ShowBot(other_);
  EXPECT_FALSE(view.currentIndex().isValid());
  view.ShowBot(bot_);
  EXPECT_EQ(current(), "Attack skill, level 4");
}

TEST(BotPlacesModelTest, ShowsThePlacesThatHaveAllWords) {
  Bot bot = CreateZeroBot();
  for (int line = 0; line < 500; ++line) {
    bot.SetChatLine(TypeAt(27), ChatLineIndex(line),
                    "Rocket " + std::to_string(line));
  }
  BotPlacesModel places(bot);
  WordsFilter filter(places);
  const QAbstractItemModelTester tester(&places, kFatal);
  const QAbstractItemModelTester filter_tester(&filter, kFatal);
  const auto found = [&filter](const char* text) {
    filter.SetText(QLatin1String(text));
    return filter.rowCount();
  };
  EXPECT_EQ(found(""), 200);
  EXPECT_EQ(found("ROCKET  random"), 0);
  EXPECT_EQ(found("ROCKET 499"), 1);
  EXPECT_EQ(
      places.PlaceAt(filter.mapToSource(filter.index(0, 0))),
      BotPlace(ChatPlace{.type = TypeAt(27), .line = ChatLineIndex(499)}));
  EXPECT_EQ(found("rocket"), 200);
  EXPECT_EQ(found("firethrottle level 4"), 1);
}

}  // namespace
}  // namespace fragsmith
