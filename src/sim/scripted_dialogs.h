// Modal questions answered from a script. A dialog that the script does not have next, and an answer that nothing
// asked for, are errors.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/ports.h"

namespace pawnfield {

struct ShownBox {
  std::string Text;
  std::string Title;
  BoxKind Kind = BoxKind::Plain;
};

class ScriptedDialogs : public Dialogs {
 public:
  // Ends the process when errors were left unread: a script that went wrong can't pass for one that went well.
  ~ScriptedDialogs() override;

  // The next box must contain textPart; act runs while it is shown.
  void ExpectMessage(const std::string& textPart, BoxAnswer answer = BoxAnswer::Ok, std::function<void()> act = {});
  void ExpectFile(const std::string& chosenPath);
  void ExpectFont(std::optional<Font> chosen);
  void ExpectColor(std::optional<Color> chosen);
  // act runs while the form of that name is shown and must see it unloaded or hidden.
  void ExpectForm(const std::string& formName, std::function<void()> act);

  BoxAnswer MessageBox(const std::string& text, const std::string& title, BoxKind kind) override;
  std::string ChooseFile(const FileDialogRequest& request) override;
  std::optional<Font> ChooseFont(const Font& start) override;
  std::optional<Color> ChooseColor(Color start) override;
  void ShowModal(Form& form) override;
  ModalKind Modal() const override { return Instead != nullptr ? Instead->Modal() : modal_; }

  const std::vector<ShownBox>& Boxes() const { return boxes_; }
  const std::vector<FileDialogRequest>& FileRequests() const { return requests_; }
  // Answers in place of the script when it is set.
  Dialogs* Instead = nullptr;
  // What the last dialog of each kind began with.
  Font FontStart;
  Color ColorStart = 0;
  // What went wrong so far, the answers left over included; empties both.
  std::vector<std::string> TakeErrors();
  // True when nothing went wrong and no answer is left over; the errors stay to be taken.
  bool Verify() const { return errors_.empty() && script_.empty(); }

 private:
  enum class Kind { Message, File, Form, Typeface, Tint };
  struct Step {
    Kind kind;
    std::string text;
    BoxAnswer answer = BoxAnswer::Ok;
    std::function<void()> act;
    std::optional<Font> font{};
    std::optional<Color> color{};
  };

  // Takes the next step when it is of that kind and fits what is shown; otherwise records an error.
  bool Take(Kind kind, const std::string& shown, Step& step);
  // Runs the step's act while a dialog of that kind is up.
  void Act(const Step& step, ModalKind kind);
  static bool Fits(const Step& step, Kind kind, const std::string& shown);
  static std::string Describe(Kind kind, const std::string& text);

  ModalKind modal_ = ModalKind::None;
  std::deque<Step> script_;
  std::vector<std::string> errors_;
  std::vector<ShownBox> boxes_;
  std::vector<FileDialogRequest> requests_;
};

}  // namespace pawnfield
