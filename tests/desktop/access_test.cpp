// What a screen reader is told of the windows, and what its actions do: asked as a screen reader asks, without a bus.

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QTabWidget>
#include <QTest>
#include <set>

#include "desktop/windows/audience_window.h"
#include "desktop/windows/console_window.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "places.h"
#include "program/handlers.h"

namespace pawnfield {
namespace {

QAccessibleInterface& Of(QWidget& widget) { return *QAccessible::queryAccessibleInterface(&widget); }

// What is told of everything below, without what isn't there at the moment.
QStringList Told(QAccessibleInterface& node) {
  QStringList texts;
  for (int i = 0; i < node.childCount(); ++i) {
    QAccessibleInterface* child = node.child(i);
    if (child == nullptr || child->state().invisible) continue;
    EXPECT_EQ(node.indexOfChild(child), i);
    texts += child->text(QAccessible::Name);
    texts += Told(*child);
  }
  texts.removeAll(QString());
  return texts;
}

class AccessTest : public ProgramTest {
 protected:
  void SetUp() override {
    AttachHandlers(show_);
    program_.Console().show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&program_.Console(), kSlowMachineMs));
  }
  // The control can be reached, on its tab of its form.
  void BringUp(Form& form, Control& control, const QWidget& widget) {
    form.Visible = true;
    for (Control* part = &control; part != nullptr; part = part->Container) part->Visible = part->Enabled = true;
    auto* tabs = Window(form).findChild<QTabWidget*>();
    for (int i = 0; tabs != nullptr && i < tabs->count() && !widget.isVisible(); ++i) tabs->setCurrentIndex(i);
  }
  void ShowQuestion() {
    for (Label* question : {&form_.lblQuestion[0], &show_.frmFSMain.lblQuestion[0]}) {
      question->Caption = "What is the capital of Norway?";
    }
    form_.picQuestion.Visible = show_.frmFSMain.picQuestion.Visible = true;
    form_.lblAnswer.Caption = "Oslo";
  }
};

TEST_F(AccessTest, TheCanvasesTellWhatTheyShowAndOnlyTheConsoleTellsTheAnswer) {
  show_.state.Board[1][2] = 2;
  const QStringList console = Told(Of(program_.Console().Board()));
  EXPECT_EQ(console.count("A1: free"), 1);
  EXPECT_EQ(console.count("C2: PLAYER 2"), 1);
  EXPECT_EQ(console.filter(": ").size(), 25);
  EXPECT_FALSE(console.contains("What is the capital of Norway?"));

  ShowQuestion();
  const QString question = "What is the capital of Norway?";
  EXPECT_TRUE(Told(Of(program_.Console())).contains(question));
  EXPECT_TRUE(Told(Of(program_.Console())).contains("Oslo"));
  program_.Audience().show();
  EXPECT_TRUE(Told(Of(program_.Audience())).contains(question));
  EXPECT_TRUE(Told(Of(program_.Audience())).filter("Oslo").isEmpty());

  form_.lblRightWrong.Caption = "Correct!";
  form_.picCorrect.Visible = true;
  EXPECT_TRUE(Told(Of(program_.Console().Board())).contains("Correct!"));
  form_.picStandby.Visible = true;
  EXPECT_TRUE(Told(Of(program_.Console().Board())).contains("Standby"));
}

TEST_F(AccessTest, WhoBeginsToListenInAShowIsToldWhatChangesFromThen) {
  // What was read out last.
  const auto announced = [this] {
    QTest::qWait(50);
    QAccessibleInterface& board = Of(program_.Console().Board());
    for (int i = 0; i < board.childCount(); ++i) {
      if (board.child(i)->role() == QAccessible::Notification) return board.child(i)->text(QAccessible::Name);
    }
    return QString("nothing announces");
  };
  form_.picStandby.Visible = false;
  ShowQuestion();
  EXPECT_EQ(announced(), "");
  QAccessible::setActive(true);
  show_.lastVerdict = {1, 2, false};
  form_.lblLineExpected.Caption = "rings in";
  EXPECT_EQ(announced(), "Incorrect");
  QAccessible::setActive(false);
  form_.picStandby.Visible = true;
  EXPECT_EQ(announced(), "Incorrect") << "nobody listens any more";
}

TEST_F(AccessTest, AToggleIsAClickAndLeavesOneOptionOfEachGroupChecked) {
  const auto expectOne = [this](auto& group, std::size_t chosen) {
    for (std::size_t i = 0; i < group.Size(); ++i) {
      const QAccessibleInterface& option = Of(Widget<QWidget>(WidgetName(group[i].Name()).toLatin1()));
      EXPECT_EQ(option.role(), QAccessible::RadioButton) << group[i].Name();
      EXPECT_EQ(static_cast<bool>(option.state().checked), i == chosen) << group[i].Name();
      EXPECT_EQ(group[i].Value.Get(), i == chosen) << group[i].Name();
    }
  };
  const auto toggle = [this](Control& control) {
    Of(Widget<QWidget>(WidgetName(control.Name()).toLatin1()))
        .actionInterface()
        ->doAction(QAccessibleActionInterface::toggleAction());
  };
  const auto eachOf = [&](auto& group) {
    for (std::size_t i = 0; i < group.Size(); ++i) {
      group[i].Enabled = true;
      toggle(group[i]);
      expectOne(group, i);
    }
    const std::size_t last = group.Size() - 1;
    toggle(group[last]);
    expectOne(group, last);
    group[0].Enabled = false;
    toggle(group[0]);
    expectOne(group, last);
  };
  form_.fraGridControl.Enabled = true;
  eachOf(form_.optGameEnds);
  eachOf(form_.optSoundBank);
  eachOf(form_.optPlayers);
  eachOf(form_.optGameType);

  for (CheckBox* box : {&form_.chkAnimation, &form_.chkIncorrectPenalty}) {
    box->Enabled = true;
    const auto was = box->Value.Get();
    EXPECT_EQ(Of(Widget<QWidget>(box->Name().c_str())).role(), QAccessible::CheckBox);
    toggle(*box);
    EXPECT_NE(box->Value.Get(), was) << box->Name();
    toggle(*box);
    EXPECT_EQ(box->Value.Get(), was) << box->Name();
  }
}

// Of every form, with nothing behind them: what comes of a click is the forms' own tests.
TEST_F(AccessTest, AToggleOnEachOptionAndBoxOfEveryFormIsOneClick) {
  int toggled = 0;
  for (Form* form : AllForms(show_)) {
    for (Control* control : form->Controls()) {
      auto* option = dynamic_cast<OptionButton*>(control);
      auto* box = dynamic_cast<CheckBox*>(control);
      if (option == nullptr && box == nullptr) continue;
      SCOPED_TRACE(form->Name() + " " + control->Name());
      auto& button = *Window(*form).findChild<QAbstractButton*>(WidgetName(control->Name()));
      BringUp(*form, *control, button);
      int clicks = 0;
      control->OnClick = [&clicks] { ++clicks; };
      const bool was = button.isChecked();
      Of(button).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
      EXPECT_EQ(clicks, 1);
      EXPECT_EQ(Of(button).role(), option != nullptr ? QAccessible::RadioButton : QAccessible::CheckBox);
      EXPECT_EQ(static_cast<bool>(Of(button).state().checked), option != nullptr || !was);
      for (const OptionButton* other : option != nullptr ? option->Group : std::vector<OptionButton*>()) {
        const auto* seen = Window(*form).findChild<QAbstractButton*>(WidgetName(other->Name()));
        EXPECT_EQ(seen->isChecked(), other == option) << other->Name();
        EXPECT_EQ(other->Value.Get(), other == option) << other->Name();
      }
      control->OnClick = {};
      ++toggled;
    }
  }
  EXPECT_GT(toggled, 40);
}

TEST_F(AccessTest, AListIsNamedByItsLabelAndToldWithWhatIsChosenInIt) {
  form_.cbxScore[1].List = std::vector<std::string>{"50", "100"};
  form_.cbxScore[1].Select(0);
  QAccessibleInterface& list = Of(Widget<QWidget>("cbxScore_1"));
  EXPECT_EQ(list.text(QAccessible::Name), "Line bonus");
  EXPECT_EQ(list.text(QAccessible::Value), "50");
}

// Whatever is worked has a name, and a list's is not what is chosen in it.
TEST_F(AccessTest, EveryControlOfEveryFormHasAName) {
  const std::set<QAccessible::Role> worked{QAccessible::RadioButton,  QAccessible::CheckBox, QAccessible::ComboBox,
                                           QAccessible::EditableText, QAccessible::Slider,   QAccessible::Button,
                                           QAccessible::Table,        QAccessible::Tree};
  int looked = 0;
  for (FormWindow* window : program_.Windows()) {
    for (QWidget* widget : window->findChildren<QWidget*>()) {
      QAccessibleInterface* access = QAccessible::queryAccessibleInterface(widget);
      if (access == nullptr || worked.count(access->role()) == 0 || widget->objectName().isEmpty() ||
          widget->objectName().startsWith("qt_")) {
        continue;
      }
      // Written when its form comes up.
      const auto* button = qobject_cast<QAbstractButton*>(widget);
      if (window != &program_.Console() && button != nullptr && button->text().isEmpty()) continue;
      ++looked;
      const QString name = access->text(QAccessible::Name);
      const std::string where = (window->objectName() + " " + widget->objectName()).toStdString();
      EXPECT_FALSE(name.isEmpty()) << where;
      const bool isList = access->role() == QAccessible::ComboBox;
      EXPECT_FALSE(isList && name == access->text(QAccessible::Value)) << where;
    }
  }
  EXPECT_GT(looked, 150);
}

}  // namespace
}  // namespace pawnfield
