#include "record/results_window.h"

#include <memory>
#include <utility>

#include "forms/main_form.h"
#include "forms/results_form.h"
#include "platform/attach.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "record/history.h"
#include "record/record_lines.h"
#include "record/results.h"
#include "sets/file_dialogs.h"
#include "show/show.h"
#include "show/show_record.h"

namespace pawnfield {

namespace {

constexpr const char* kTableFilter = "Tables(*.csv)|*.csv";

// "2026-03-01 20:14" of "Show 2026-03-01 20-14-05.jsonl".
std::string BegunOf(const std::string& file) {
  constexpr std::size_t kDay = 5, kTime = 16, kLeast = 24;
  if (file.size() < kLeast) return file;
  std::string time = file.substr(kTime, 5);
  time[2] = ':';
  return file.substr(kDay, 10) + " " + time;
}

// The records that were there at the start and this show's own, newest first.
std::vector<std::string> FilesOf(const Show& show) {
  const ShowRecord& record = *show.record;
  std::vector<std::string> files = record.FilesAtStart;
  std::erase(files, record.File);
  if (!record.File.empty()) files.push_back(record.File);
  return {files.rbegin(), files.rend()};
}

ListView::Row RowOf(const ResultRow& row) {
  return {row.Time,       row.Question > 0 ? std::to_string(row.Question) : "",
          row.Wording,    row.Answer,
          row.RangIn,     row.Verdict,
          ScoresText(row)};
}

void ShowQuestions(ResultsForm& form, const ShowResults& results) {
  std::vector<ListView::Row> rows;
  for (const GameResults& game : results.Games) {
    // Where there are several, each begins with its name.
    if (results.Games.size() > 1) rows.push_back({"", "", game.Name, "", "", "", ""});
    for (const ResultRow& row : game.Rows) rows.push_back(RowOf(row));
  }
  for (const std::string& row : results.Checked) rows.push_back({"", "", "Check: " + row, "", "", "", ""});
  form.lstQuestions.SelectedItem = -1;
  form.lstQuestions.ListItems = rows;
}

void ShowTotals(ResultsForm& form, const ShowResults& results) {
  std::vector<ListView::Row> rows;
  for (const PlayerTotal& total : results.Totals) {
    rows.push_back({total.Name, std::to_string(total.Right), std::to_string(total.Wrong), SecondsText(total.FastestMs),
                    LeadText(total.MeanMarginMs), NumberText(total.Score)});
  }
  form.lstTotals.SelectedItem = -1;
  form.lstTotals.ListItems = rows;
}

void ShowResultsOf(Show& show, const ShowResults& results, const std::string& shown) {
  ResultsForm& form = show.frmResults;
  show.record->Results = results;
  form.lblShown.Caption = shown;
  form.lblResultsStatus.Caption = "";
  ShowQuestions(form, results);
  ShowTotals(form, results);
  form.btnSaveTable.Enabled = form.btnPrint.Enabled = !results.Games.empty();
}

std::string ShownText(const ShowResults& results) {
  std::string text = "The show of " + results.Begun;
  for (std::size_t i = 0; i < results.Games.size(); ++i) text += (i == 0 ? ": " : ", ") + results.Games[i].Name;
  return text;
}

// The answer comes later, and counts if no other was asked for meanwhile.
void ReadShow(Show& show, const std::string& file) {
  const int asked = ++show.record->ResultsAsked;
  auto read = std::make_shared<std::optional<ShowResults>>();
  show.platform.records.ReadBeside(
      file,
      [read](const std::string& bytes) {
        if (const auto record = ParseRecord(bytes)) *read = ResultsOf(*record);
      },
      [&show, read, asked] {
        show.frmResults.Dispatch(
            [&] {
              if (asked != show.record->ResultsAsked) return;
              ShowResultsOf(show, read->value_or(ShowResults{}),
                            *read ? ShownText(**read) : "This record can't be read.");
            },
            "OnRead");
      });
}

std::string TableName(const Show& show) {
  std::string name = "Results " + show.record->Results.Begun;
  for (char& c : name) {
    if (c == ':') c = '-';
  }
  return name + ".csv";
}

}  // namespace

void AttachResults(Show& show) {
  ResultsForm& form = show.frmResults;
  OnClick(show, show.frmMain.mnuFileResults, mnuFileResults_Click);
  OnClick(show, form.lstShows, lstShows_Click);
  OnClick(show, form.btnSaveTable, btnSaveTable_Click);
  OnClick(show, form.btnPrint, btnPrintResults_Click);
  form.btnClose.OnClick = [&form] { form.Unload(); };
}

void mnuFileResults_Click(Show& show) {
  ResultsForm& form = show.frmResults;
  TakeSnapshot(show);
  std::vector<ListView::Row> rows;
  for (const std::string& file : FilesOf(show))
    rows.push_back({BegunOf(file) + (file == show.record->File ? ", this show" : "")});
  form.lstShows.SelectedItem = -1;
  form.lstShows.ListItems = rows;
  ShowResultsOf(show, {}, rows.empty() ? "No show is on record yet." : "");
  form.Visible = true;
  form.BringToFront();
  if (!rows.empty()) form.lstShows.Select(0);
}

void lstShows_Click(Show& show) {
  const std::vector<std::string> files = FilesOf(show);
  const auto picked = static_cast<std::size_t>(show.frmResults.lstShows.SelectedItem);
  if (picked >= files.size()) return;
  ShowResultsOf(show, {}, "");
  ReadShow(show, files[picked]);
}

void btnSaveTable_Click(Show& show) {
  const std::string path = Trim(ShowFileDialog(
      show, {FileDialogMode::SaveAskingOverwrite, "Save the results", kTableFilter, "csv", TableName(show), ""}));
  if (path.empty()) return;
  try {
    show.platform.files.Write(path, FormatTable(TableOf(show.record->Results)));
    show.frmResults.lblResultsStatus.Caption = "Saved as " + ExtractFileName(path) + ".";
  } catch (const RuntimeError& error) {
    ReportError(show.platform.dialogs, error, show.frmResults.Name(), "btnSaveTable", path);
  }
}

void btnPrintResults_Click(Show& show) {
  try {
    const auto copies = show.platform.printing.ChoosePrinter();
    if (copies) show.platform.printing.Print(DocumentOf(show.record->Results), *copies);
  } catch (const RuntimeError& error) {
    ReportError(show.platform.dialogs, error, show.frmResults.Name(), "btnPrint");
  }
}

}  // namespace pawnfield
