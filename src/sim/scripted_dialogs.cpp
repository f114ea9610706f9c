#include "sim/scripted_dialogs.h"

#include <cstdlib>
#include <iostream>
#include <utility>

namespace pawnfield {

ScriptedDialogs::~ScriptedDialogs() {
  const auto errors = TakeErrors();
  for (const std::string& error : errors) std::cerr << "Dialogs: " << error << "\n";
  if (!errors.empty()) std::abort();
}

void ScriptedDialogs::ExpectMessage(const std::string& textPart, BoxAnswer answer, std::function<void()> act) {
  script_.push_back({Kind::Message, textPart, answer, std::move(act)});
}

void ScriptedDialogs::ExpectFile(const std::string& chosenPath) {
  script_.push_back({Kind::File, chosenPath, BoxAnswer::Ok, {}});
}

void ScriptedDialogs::ExpectFont(std::optional<Font> chosen) {
  script_.push_back({Kind::Typeface, "", BoxAnswer::Ok, {}, std::move(chosen)});
}

void ScriptedDialogs::ExpectColor(std::optional<Color> chosen) {
  script_.push_back({Kind::Tint, "", BoxAnswer::Ok, {}, {}, chosen});
}

void ScriptedDialogs::ExpectForm(const std::string& formName, std::function<void()> act) {
  script_.push_back({Kind::Form, formName, BoxAnswer::Ok, std::move(act)});
}

std::string ScriptedDialogs::Describe(Kind kind, const std::string& text) {
  switch (kind) {
    case Kind::Message:
      return "message \"" + text + "\"";
    case Kind::File:
      return "file dialog \"" + text + "\"";
    case Kind::Typeface:
      return "font dialog";
    case Kind::Tint:
      return "colour dialog";
    case Kind::Form:
      break;
  }
  return "form " + text;
}

bool ScriptedDialogs::Fits(const Step& step, Kind kind, const std::string& shown) {
  if (step.kind != kind) return false;
  switch (kind) {
    case Kind::Message:
      return shown.find(step.text) != std::string::npos;
    case Kind::Form:
      return shown == step.text;
    case Kind::File:
    case Kind::Typeface:
    case Kind::Tint:
      break;
  }
  return true;
}

bool ScriptedDialogs::Take(Kind kind, const std::string& shown, Step& step) {
  if (script_.empty() || !Fits(script_.front(), kind, shown)) {
    const std::string expected = script_.empty() ? "nothing" : Describe(script_.front().kind, script_.front().text);
    errors_.push_back("unexpected " + Describe(kind, shown) + ", expected " + expected);
    return false;
  }
  step = std::move(script_.front());
  script_.pop_front();
  return true;
}

void ScriptedDialogs::Act(const Step& step, ModalKind kind) {
  const ModalKind below = std::exchange(modal_, kind);
  if (step.act) step.act();
  modal_ = below;
}

BoxAnswer ScriptedDialogs::MessageBox(const std::string& text, const std::string& title, BoxKind kind) {
  if (Instead != nullptr) return Instead->MessageBox(text, title, kind);
  boxes_.push_back({text, title, kind});
  Step step{Kind::Message, {}, BoxAnswer::Ok, {}};
  if (Take(Kind::Message, text, step)) {
    Act(step, ModalKind::Box);
    return step.answer;
  }
  if (kind == BoxKind::YesNoCancel) return BoxAnswer::Cancel;
  return kind == BoxKind::YesNo ? BoxAnswer::No : BoxAnswer::Ok;
}

std::string ScriptedDialogs::ChooseFile(const FileDialogRequest& request) {
  if (Instead != nullptr) return Instead->ChooseFile(request);
  requests_.push_back(request);
  Step step{Kind::File, {}, BoxAnswer::Ok, {}};
  return Take(Kind::File, request.Title, step) ? step.text : std::string();
}

std::optional<Font> ScriptedDialogs::ChooseFont(const Font& start) {
  if (Instead != nullptr) return Instead->ChooseFont(start);
  FontStart = start;
  Step step{Kind::Typeface, {}, BoxAnswer::Ok, {}};
  return Take(Kind::Typeface, "", step) ? step.font : std::nullopt;
}

std::optional<Color> ScriptedDialogs::ChooseColor(Color start) {
  if (Instead != nullptr) return Instead->ChooseColor(start);
  ColorStart = start;
  Step step{Kind::Tint, {}, BoxAnswer::Ok, {}};
  return Take(Kind::Tint, "", step) ? step.color : std::nullopt;
}

void ScriptedDialogs::ShowModal(Form& form) {
  if (Instead != nullptr) return Instead->ShowModal(form);
  Step step{Kind::Form, {}, BoxAnswer::Ok, {}};
  const bool expected = Take(Kind::Form, form.Name(), step);
  form.Visible = true;
  if (expected) Act(step, ModalKind::Window);
  if (!form.Visible) return;
  if (expected) errors_.push_back("form " + form.Name() + " was left open");
  form.Unload();
}

std::vector<std::string> ScriptedDialogs::TakeErrors() {
  std::vector<std::string> errors;
  errors.swap(errors_);
  for (const Step& step : script_) errors.push_back("nothing asked for " + Describe(step.kind, step.text));
  script_.clear();
  return errors;
}

}  // namespace pawnfield
