// The style sheet, computed: every text can be read on whatever it stands on, and every edge that means something is
// seen. A style's colours are taken as the sheet cascades: the type first, then the name, then the state.

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <map>
#include <vector>

#include "data/color_sight.h"
#include "data/house_colors.h"

namespace pawnfield {
namespace {

constexpr double kText = 4.5;
constexpr double kEdge = 3;
constexpr double kDisabledText = 2;

// "QPushButton#btnStart:enabled:hover" in its parts.
struct Selector {
  explicit Selector(const QString& text) : whole(text) {
    static const QRegularExpression kStates("(?<!:):([a-z-]+)");
    static const QRegularExpression kNeeds("\\[[^\\]]*\\]|#\\w+");
    const QString last = text.split(QRegularExpression("[ >]+")).last();
    part = last.section("::", 1).section(':', 0, 0);
    for (auto i = kStates.globalMatch(last); i.hasNext();) states << i.next().captured(1);
    for (auto i = kNeeds.globalMatch(last); i.hasNext();) needs << i.next().captured(0);
    type = last.section(QRegularExpression("[#\\[:]"), 0, 0);
    isWithin = text.contains(' ') || text.contains('>');
  }
  // Whether what the other one picks is picked by this one too.
  bool Covers(const Selector& other) const {
    if (part != other.part || (type != "*" && !type.isEmpty() && type != other.type)) return false;
    if (isWithin && whole.section(':', 0, 0) != other.whole.section(':', 0, 0)) return false;
    const auto within = [](const QStringList& few, const QStringList& many) {
      return std::all_of(few.begin(), few.end(), [&](const QString& one) { return many.contains(one); });
    };
    return within(states, other.states) && within(needs, other.needs);
  }
  qsizetype Weight() const { return 100 * needs.size() + 10 * states.size() + (type == "*" ? 0 : 1); }

  QString whole, type, part;
  QStringList states, needs;
  bool isWithin = false;
};

struct Rule {
  Selector selector;
  std::map<QString, Color> colors;
};

class StyleSheet {
 public:
  StyleSheet() {
    QFile file(":/look/look.qss");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    static const QRegularExpression kRule("([^{}]+)\\{([^{}]*)\\}");
    for (auto i = kRule.globalMatch(QString::fromUtf8(file.readAll())); i.hasNext();) {
      const auto match = i.next();
      for (const QString& selector : match.captured(1).split(',')) {
        rules_.push_back({Selector(selector.simplified()), ColorsOf(match.captured(2))});
      }
    }
  }
  const std::vector<Rule>& Rules() const { return rules_; }

  // The colour that the sheet gives to what the selector picks, or -1.
  Color Of(const Selector& selector, const QString& what) const {
    Color color = -1;
    qsizetype weight = -1;
    for (const Rule& rule : rules_) {
      const auto found = rule.colors.find(what);
      if (found == rule.colors.end() || rule.selector.Weight() < weight || !rule.selector.Covers(selector)) continue;
      color = found->second;
      weight = rule.selector.Weight();
    }
    return color;
  }

 private:
  static std::map<QString, Color> ColorsOf(const QString& body) {
    static const QRegularExpression kDeclaration("([a-z-]+)\\s*:[^;]*?#([0-9A-Fa-f]{6})");
    std::map<QString, Color> colors;
    for (auto i = kDeclaration.globalMatch(body); i.hasNext();) {
      const auto match = i.next();
      const QString name = match.captured(1) == "border-color" ? "border" : match.captured(1);
      colors[name] = FromRgb(match.captured(2).toInt(nullptr, 16));
    }
    return colors;
  }
  std::vector<Rule> rules_;
};

// What a style without a ground of its own may stand on.
std::vector<Color> Grounds(const StyleSheet& sheet, const Selector& selector, const QString& what = "background") {
  const Color own = sheet.Of(selector, what);
  if (own >= 0) return {own};
  return {kPanelGround, kDeepGround, FromRgb(0x0E1320), FromRgb(0x080C16)};
}

bool MeansSomething(const Selector& selector) {
  static const QStringList kInputs{"QPushButton", "QComboBox",    "QLineEdit",         "QPlainTextEdit",
                                   "QTreeWidget", "QTableWidget", "QAbstractItemView", "QAbstractSpinBox"};
  if (selector.isWithin || selector.states.contains("disabled")) return false;
  return kInputs.contains(selector.type) || selector.part == "indicator" || selector.states.contains("focus");
}

TEST(StyleSheet, EveryTextCanBeReadOnItsGround) {
  const StyleSheet sheet;
  int pairs = 0;
  for (const Rule& rule : sheet.Rules()) {
    const Color text = sheet.Of(rule.selector, "color");
    // A line between two groups is nothing that is read.
    if (rule.selector.type == "QFrame" && !rule.selector.isWithin) continue;
    if (text < 0 || (!rule.selector.part.isEmpty() && sheet.Of(rule.selector, "background") < 0)) continue;
    const double least = rule.selector.states.contains("disabled") ? kDisabledText : kText;
    for (const Color ground : Grounds(sheet, rule.selector)) {
      ++pairs;
      EXPECT_GE(ContrastRatio(text, ground), least) << rule.selector.whole.toStdString();
    }
  }
  EXPECT_GT(pairs, 100) << "the sheet was read";
}

// The selected row of a list, and the tool that has the focus.
TEST(StyleSheet, WhatIsPickedByItsGroundStandsOutFromWhatItStandsOn) {
  const StyleSheet sheet;
  int grounds = 0;
  for (const Rule& rule : sheet.Rules()) {
    const bool row = rule.selector.part == "item" && rule.selector.states.contains("selected");
    const bool tool = rule.selector.type == "QToolButton" && rule.selector.states.contains("focus");
    if (!row && !tool) continue;
    for (const Color ground : {kPanelGround, kDeepGround, FromRgb(0x0B0F1A), FromRgb(0x171F33)}) {
      ++grounds;
      EXPECT_GE(ContrastRatio(sheet.Of(rule.selector, "background"), ground), kEdge)
          << rule.selector.whole.toStdString();
    }
  }
  EXPECT_GT(grounds, 15);
}

TEST(StyleSheet, EveryEdgeThatMeansSomethingIsSeen) {
  const StyleSheet sheet;
  int edges = 0;
  for (const Rule& rule : sheet.Rules()) {
    if (!MeansSomething(rule.selector)) continue;
    const Color edge = sheet.Of(rule.selector, "border");
    if (edge < 0) continue;
    for (const Color around : {kPanelGround, kDeepGround}) {
      ++edges;
      EXPECT_GE(ContrastRatio(edge, around), kEdge) << rule.selector.whole.toStdString();
    }
  }
  EXPECT_GT(edges, 40);
}

TEST(StyleSheet, TheSelectedRowStandsOutAndIsRead) {
  const StyleSheet sheet;
  int selections = 0;
  for (const Rule& rule : sheet.Rules()) {
    const Color row = sheet.Of(rule.selector, "selection-background-color");
    if (row < 0 || !rule.selector.states.isEmpty()) continue;
    ++selections;
    const std::string name = rule.selector.whole.toStdString();
    for (const Color list : Grounds(sheet, rule.selector)) EXPECT_GE(ContrastRatio(row, list), kEdge) << name;
    EXPECT_GE(ContrastRatio(sheet.Of(rule.selector, "selection-color"), row), kText) << name;
  }
  EXPECT_GE(selections, 4);
}

}  // namespace
}  // namespace pawnfield
