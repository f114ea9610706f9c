#include "media/optional_headers.h"

#include <algorithm>

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "forms/optional_headers_form.h"
#include "media/header_file.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "show/settings.h"
#include "show/settings_table.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr long long kOldestMinutes = 360;
constexpr int kUnsetSize = 20;
// The largest size that a text box takes.
constexpr int kLargestSize = 2160;
constexpr const char* kUnsetFont = "Segoe UI";
constexpr const char* kTextFilter = "Text(*.txt)|*.txt";
const OptionalHeader kDefaultLook{"", "Segoe UI", 18, true, false, "65535", "5242880"};

std::string HeaderPath(const Show& show) { return show.platform.folders.DataRoot + "\\Headers.txt"; }

Color ColorOf(const std::string& decimal) {
  const double number = LeadingNumber(decimal);
  return number > 0 && number <= kWhite ? static_cast<Color>(number) : kBlack;
}

Font FontOf(const OptionalHeader& header) {
  const int size = header.HeaderFontSize > 0 ? header.HeaderFontSize : kUnsetSize;
  const std::string name = Trim(header.HeaderFont).empty() ? kUnsetFont : header.HeaderFont;
  return {name, static_cast<double>(std::min(size, kLargestSize)), header.HeaderFontBold, header.HeaderFontItalic};
}

int WholeSize(double points) { return static_cast<int>(RoundHalfEven(points)); }

void ShowInBox(TextBox& box, const OptionalHeader& header) {
  box.Text = header.HeaderText;
  box.Font = FontOf(header);
  box.ForeColor = ColorOf(header.HeaderForeColor);
  box.BackColor = ColorOf(header.HeaderBackColor);
}

OptionalHeader FromBox(const TextBox& box) {
  const Font& font = box.Font;
  return {box.Text,
          font.Name,
          WholeSize(font.Size),
          font.Bold,
          font.Italic,
          std::to_string(box.ForeColor.Get()),
          std::to_string(box.BackColor.Get())};
}

HeaderRecords FromBoxes(const Show& show) {
  HeaderRecords records;
  for (std::size_t i = 0; i < kHeaderCount; ++i) records[i] = FromBox(show.frmOptionalHeaders.txtOptionalHeader[i]);
  return records;
}

HeaderRecords Records(const Show& show) {
  HeaderRecords records;
  std::copy_n(show.state.OptionalHeaders.begin(), kHeaderCount, records.begin());
  return records;
}

// A record that was never written has no look of its own; its box keeps the one it has.
void FillBoxes(Show& show, const HeaderRecords& records) {
  OptionalHeadersForm& form = show.frmOptionalHeaders;
  form.chkBaseImage.Value = show.state.ShowBaseHeader ? 1 : 0;
  for (std::size_t i = 0; i < kHeaderCount; ++i) {
    if (records[i].HeaderForeColor.empty()) {
      form.txtOptionalHeader[i].Text = records[i].HeaderText;
    } else {
      ShowInBox(form.txtOptionalHeader[i], records[i]);
    }
  }
}

void OptionalHeaders_Load(Show& show) {
  show.frmOptionalHeaders.Loaded = true;
  ReadFromHeaderFile(show);
  if (!show.state.OptionalHeadersOn) return;
  const auto count = static_cast<std::size_t>(show.state.OptionalHeaderCount);
  for (std::size_t i = 0; i < std::min(count, kHeaderCount); ++i) {
    ShowInBox(show.frmOptionalHeaders.txtOptionalHeader[i], show.state.OptionalHeaders[i]);
  }
}

void WriteBoxes(Show& show, const std::string& path, const std::string& procedure) {
  try {
    show.platform.files.Write(path, FormatHeaderFile(show.platform.clock.Now(), FromBoxes(show)));
  } catch (const RuntimeError& error) {
    ReportError(show.platform.dialogs, error, show.frmOptionalHeaders.Name(), procedure, path);
  }
}

void btnClearAll_Click(Show& show) {
  for (std::size_t i = 0; i < kHeaderCount; ++i) ShowInBox(show.frmOptionalHeaders.txtOptionalHeader[i], kDefaultLook);
}

// What was typed and not taken goes: the boxes say again what the rotation shows.
void RestoreBoxes(Show& show) {
  OptionalHeadersForm& form = show.frmOptionalHeaders;
  for (std::size_t i = 0; i < kHeaderCount; ++i) ShowInBox(form.txtOptionalHeader[i], form.Before[i]);
}

void btnCancel_Click(Show& show) {
  RestoreBoxes(show);
  show.frmOptionalHeaders.Visible = false;
  show.frmMain.SetFocus();
}

// The first blank box ends the headers, whatever stands behind it.
void TakeBoxes(Show& show) {
  GameState& state = show.state;
  const HeaderRecords boxes = FromBoxes(show);
  state.OptionalHeadersOn = !Trim(boxes[0].HeaderText).empty();
  if (!state.OptionalHeadersOn) return;
  for (std::size_t i = 0; i < kHeaderCount && !Trim(boxes[i].HeaderText).empty(); ++i) {
    state.OptionalHeaders[i] = boxes[i];
    state.OptionalHeaders[i].HeaderText = Trim(boxes[i].HeaderText);
    state.OptionalHeaderCount = static_cast<int>(i) + 1;
  }
}

void btnOk_Click(Show& show) {
  show.state.ShowBaseHeader = show.frmOptionalHeaders.chkBaseImage.Value == 1;
  // A disk that is full must not keep the headers from the screens.
  SaveSettingOrReport(show, kShowBaseHeaderKey, show.frmOptionalHeaders, "btnOk_Click");
  show.frmOptionalHeaders.Visible = false;
  TakeBoxes(show);
  SaveToOSKD(show);
}

void btnOpt1Font_Click(Show& show, std::size_t index) {
  OptionalHeader& record = show.state.OptionalHeaders[index];
  if (record.HeaderFontSize == 0) record.HeaderFontSize = kUnsetSize;
  if (record.HeaderFont.empty()) record.HeaderFont = kUnsetFont;
  TextBox& box = show.frmOptionalHeaders.txtOptionalHeader[index];
  // A file that was opened has filled the box and not the record.
  auto font = show.platform.dialogs.ChooseFont(show.frmOptionalHeaders.FileName.empty() ? FontOf(record) : box.Font);
  if (!font) return;
  font->Size = WholeSize(font->Size);
  box.Font = *font;
  record.HeaderFont = font->Name;
  record.HeaderFontSize = WholeSize(font->Size);
  record.HeaderFontBold = font->Bold;
  record.HeaderFontItalic = font->Italic;
}

void btnOpt1Fg_Click(Show& show, std::size_t index) {
  TextBox& box = show.frmOptionalHeaders.txtOptionalHeader[index];
  const auto color = show.platform.dialogs.ChooseColor(box.ForeColor);
  if (!color) return;
  box.ForeColor = *color;
  show.state.OptionalHeaders[index].HeaderForeColor = std::to_string(*color);
}

void btnOpt1Bg_Click(Show& show, std::size_t index) {
  TextBox& box = show.frmOptionalHeaders.txtOptionalHeader[index];
  const auto color = show.platform.dialogs.ChooseColor(box.BackColor);
  if (!color) return;
  box.BackColor = *color;
  show.state.OptionalHeaders[index].HeaderBackColor = std::to_string(*color);
}

void mnuFileOpen_Click(Show& show) {
  FileDialogRequest request;
  request.Title = "Open";
  request.Filter = kTextFilter;
  const std::string path = show.platform.dialogs.ChooseFile(request);
  if (path.empty()) return;
  show.frmOptionalHeaders.FileName = path;
  try {
    HeaderRecords records = Records(show);
    ReadHeaderRecords(show.platform.files.Read(path), records);
    FillBoxes(show, records);
  } catch (const RuntimeError& error) {
    ReportError(show.platform.dialogs, error, show.frmOptionalHeaders.Name(), "Editor Save", path);
  }
}

void mnuFileSaveAs_Click(Show& show) {
  FileDialogRequest request;
  request.Title = "Save Header";
  request.Filter = kTextFilter;
  request.Save = true;
  request.FileName = "Headers.txt";
  request.DefaultExtension = "txt";
  request.ConfirmsOverwrite = false;
  const std::string path = show.platform.dialogs.ChooseFile(request);
  if (path.empty()) return;
  if (show.platform.files.CanOpen(path) &&
      show.platform.dialogs.Ask(
          {"File already exists. Select Yes to overwrite", BoxKind::YesNo, BoxAnswer::No, kReplace, kSpareFile},
          kAppTitle) != BoxAnswer::Yes) {
    return;
  }
  show.frmOptionalHeaders.FileName = path;
  WriteBoxes(show, path, "mnuFileSaveAs");
}

void mnuFileSave_Click(Show& show) {
  const std::string path = show.frmOptionalHeaders.FileName;
  if (path.empty()) {
    mnuFileSaveAs_Click(show);
  } else {
    WriteBoxes(show, path, "mnuFileSave");
  }
}

void mnuFileExit_Click(Show& show) {
  SaveToOSKD(show);
  show.frmOptionalHeaders.Unload();
}

void ShowBaseHeader(Show& show) {
  show.frmMain.txtOptionalHeading.Visible = false;
  show.frmMain.imgHeader.Visible = true;
}

void ShowHeading(Show& show, const OptionalHeader& header) {
  ShowInBox(show.frmMain.txtOptionalHeading, header);
  show.frmMain.txtOptionalHeading.Visible = true;
  show.frmMain.imgHeader.Visible = false;
}

}  // namespace

void LoadOptionalHeaders(Show& show) {
  GameState& state = show.state;
  state.OptionalHeaders = {};
  state.OptionalHeadersOn = false;
  state.OptionalHeaderCount = 0;
  state.OptionalHeaderIndex = 0;
  btnClearAll_Click(show);
  OptionalHeaders_Load(show);
  show.frmOptionalHeaders.Before = FromBoxes(show);
}

void ReadFromHeaderFile(Show& show) {
  GameState& state = show.state;
  if (!show.platform.files.CanOpen(HeaderPath(show))) return;
  state.OptionalHeaderCount = 0;
  HeaderRecords records = Records(show);
  try {
    const std::string bytes = show.platform.files.Read(HeaderPath(show));
    const auto stamp = HeaderFileStamp(bytes);
    if (stamp && MinutesBetween(*stamp, show.platform.clock.Now()) < kOldestMinutes) {
      ReadHeaderRecords(bytes, records);
      std::copy(records.begin(), records.end(), state.OptionalHeaders.begin());
      for (const OptionalHeader& record : records) {
        if (!Trim(record.HeaderText).empty()) ++state.OptionalHeaderCount;
      }
      if (state.OptionalHeaderCount > 0) state.OptionalHeadersOn = true;
    }
  } catch (const RuntimeError&) {
    // A file that can't be read leaves the headers as they are.
  }
  FillBoxes(show, records);
}

void SaveToOSKD(Show& show) { WriteBoxes(show, HeaderPath(show), "SaveToOSKD"); }

void ShowOptionalHeaders(Show& show) {
  if (!show.frmOptionalHeaders.Loaded) OptionalHeaders_Load(show);
  OptionalHeadersForm& form = show.frmOptionalHeaders;
  form.chkBaseImage.Value = show.state.ShowBaseHeader ? 1 : 0;
  form.Before = FromBoxes(show);
  show.platform.dialogs.ShowModal(form);
}

void tmrOptionalHeaders_Timer(Show& show) {
  GameState& state = show.state;
  if (!state.OptionalHeadersOn || state.OptionalHeaderCount == 0) {
    ShowBaseHeader(show);
    return;
  }
  if (state.OptionalHeaderIndex >= state.OptionalHeaderCount) {
    state.OptionalHeaderIndex = 0;
    if (state.ShowBaseHeader) {
      ShowBaseHeader(show);
      return;
    }
  }
  ShowHeading(show, state.OptionalHeaders[static_cast<std::size_t>(state.OptionalHeaderIndex++)]);
  if (state.DualScreen) FitHeading(show);
}

void FitHeading(Show& show) {
  constexpr double kAudienceScale = 2;
  Font font = show.frmMain.txtOptionalHeading.Font;
  font.Size *= kAudienceScale;
  show.frmFSMain.txtOptionalHeading.Font = font;
}

void AttachOptionalHeadersHandlers(Show& show) {
  MainForm& main = show.frmMain;
  main.tmrOptionalHeaders.OnTimer = [&show] { tmrOptionalHeaders_Timer(show); };
  main.txtOptionalHeading.OnDblClick = [&show] { ShowOptionalHeaders(show); };
  main.imgHeader.OnDblClick = main.txtOptionalHeading.OnDblClick;
  main.mnuFileOptionalHeaders.OnClick = main.txtOptionalHeading.OnDblClick;
  OptionalHeadersForm& form = show.frmOptionalHeaders;
  for (std::size_t i = 0; i < kHeaderCount; ++i) {
    form.btnOpt1Font[i].OnClick = [&show, i] { btnOpt1Font_Click(show, i); };
    form.btnOpt1Fg[i].OnClick = [&show, i] { btnOpt1Fg_Click(show, i); };
    form.btnOpt1Bg[i].OnClick = [&show, i] { btnOpt1Bg_Click(show, i); };
  }
  form.btnOk.OnClick = [&show] { btnOk_Click(show); };
  form.btnCancel.OnClick = [&show] { btnCancel_Click(show); };
  form.btnClearAll.OnClick = [&show] { btnClearAll_Click(show); };
  form.btnOpen.OnClick = form.mnuFileOpen.OnClick = [&show] { mnuFileOpen_Click(show); };
  form.btnSave.OnClick = form.mnuFileSave.OnClick = [&show] { mnuFileSave_Click(show); };
  form.mnuFileSaveAs.OnClick = [&show] { mnuFileSaveAs_Click(show); };
  form.mnuFileExit.OnClick = [&show] { mnuFileExit_Click(show); };
  form.OnUnload = [&show] {
    // The program's end unloads the form too, which may never have come up.
    if (show.frmOptionalHeaders.Loaded) RestoreBoxes(show);
    show.frmOptionalHeaders.Loaded = false;
  };
}

}  // namespace pawnfield
