#include "markdown.h"

#include <sstream>
#include <vector>

namespace pawnfield {

namespace {

constexpr int kPictureWidth = 760;

bool StartsWith(const std::string& text, const std::string& start) { return text.compare(0, start.size(), start) == 0; }

std::string Trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(" \r");
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(" \r") - first + 1);
}

// How long the mark of a numbered item ("12. ") is; 0 when the line is none.
std::size_t NumberMark(const std::string& line) {
  const std::size_t digits = line.find_first_not_of("0123456789");
  return digits != 0 && digits != std::string::npos && line.compare(digits, 2, ". ") == 0 ? digits + 2 : 0;
}

std::string PageOf(const std::string& target) {
  if (target == "../../LICENSE") return "licence.html";
  const std::size_t text = target.find(".md");
  if (text == std::string::npos || StartsWith(target, "http")) return target;
  return target.substr(0, text) + ".html" + target.substr(text + 3);
}

// "[words](target)" at the place, with or without "!" before it; moves the place behind it. False when it isn't one.
bool TakeLink(const std::string& text, std::size_t& at, std::string& html) {
  const bool picture = text[at] == '!';
  const std::size_t open = at + (picture ? 1 : 0);
  if (open >= text.size() || text[open] != '[') return false;
  const std::size_t middle = text.find("](", open);
  const std::size_t end = middle == std::string::npos ? middle : text.find(')', middle);
  if (end == std::string::npos) return false;
  const std::string words = EscapeHtml(text.substr(open + 1, middle - open - 1));
  const std::string target = PageOf(text.substr(middle + 2, end - middle - 2));
  html += picture ? "<img src=\"" + target + "\" alt=\"" + words + "\" width=\"" + std::to_string(kPictureWidth) + "\">"
                  : "<a href=\"" + target + "\">" + words + "</a>";
  at = end + 1;
  return true;
}

// Text between two equal marks becomes the tag; moves the place behind it.
bool TakeMarked(const std::string& text, std::size_t& at, const std::string& mark, const char* tag, std::string& html) {
  if (text.compare(at, mark.size(), mark) != 0) return false;
  const std::size_t end = text.find(mark, at + mark.size());
  if (end == std::string::npos) return false;
  const std::string inner = EscapeHtml(text.substr(at + mark.size(), end - at - mark.size()));
  html += std::string("<") + tag + ">" + inner + "</" + tag + ">";
  at = end + mark.size();
  return true;
}

std::string Inline(const std::string& text) {
  std::string html;
  std::size_t at = 0;
  while (at < text.size()) {
    if (TakeMarked(text, at, "**", "b", html) || TakeMarked(text, at, "`", "code", html)) continue;
    if ((text[at] == '[' || text[at] == '!') && TakeLink(text, at, html)) continue;
    html += EscapeHtml(text.substr(at++, 1));
  }
  return html;
}

class Page {
 public:
  void Line(const std::string& raw) {
    const std::string line = Trimmed(raw);
    if (line.empty()) {
      End();
    } else if (line[0] == '#') {
      Heading(line);
    } else if (line[0] == '|') {
      TableRow(line);
    } else if (StartsWith(line, "- ")) {
      Item("ul", line.substr(2));
    } else if (const std::size_t mark = NumberMark(line); mark != 0) {
      Item("ol", line.substr(mark));
    } else {
      Continue(line);
    }
  }
  std::string Html() {
    End();
    return html_;
  }

 private:
  // Closes the paragraph or item, and then the list or table around it.
  void End() {
    EndText();
    if (!around_.empty()) html_ += "</" + around_ + ">\n";
    around_.clear();
  }
  void EndText() {
    if (!text_.empty()) html_ += "<" + tag_ + ">" + Inline(text_) + "</" + tag_ + ">\n";
    text_.clear();
  }
  void Around(const std::string& tag) {
    EndText();
    if (around_ == tag) return;
    End();
    html_ += "<" + tag + ">\n";
    around_ = tag;
  }
  void Heading(const std::string& line) {
    End();
    const std::size_t level = line.find_first_not_of('#');
    const std::string tag = "h" + std::to_string(level);
    html_ += "<" + tag + ">" + Inline(Trimmed(line.substr(level))) + "</" + tag + ">\n";
  }
  void Item(const std::string& list, const std::string& text) {
    Around(list);
    tag_ = "li";
    text_ = text;
  }
  void Continue(const std::string& line) {
    if (text_.empty()) {
      End();
      tag_ = "p";
      text_ = line;
    } else {
      text_ += ' ' + line;
    }
  }
  void TableRow(const std::string& line) {
    const bool heading = around_ != "table";
    Around("table");
    if (line.find_first_not_of("|-: ") == std::string::npos) return;
    html_ += "<tr>";
    std::istringstream cells(line.substr(1));
    for (std::string cell; std::getline(cells, cell, '|');) {
      const char* tag = heading ? "th" : "td";
      html_ += std::string("<") + tag + ">" + Inline(Trimmed(cell)) + "</" + tag + ">";
    }
    html_ += "</tr>\n";
  }

  std::string html_;
  std::string around_;
  std::string tag_;
  std::string text_;
};

}  // namespace

std::string EscapeHtml(const std::string& text) {
  std::string html;
  for (const char c : text) {
    if (c == '&') {
      html += "&amp;";
    } else if (c == '<') {
      html += "&lt;";
    } else if (c == '>') {
      html += "&gt;";
    } else if (c == '"') {
      html += "&quot;";
    } else {
      html += c;
    }
  }
  return html;
}

std::string TitleOf(const std::string& markdown) {
  std::istringstream lines(markdown);
  for (std::string line; std::getline(lines, line);) {
    if (StartsWith(line, "# ")) return Trimmed(line.substr(2));
  }
  return "";
}

std::string HtmlOf(const std::string& markdown) {
  Page page;
  std::istringstream lines(markdown);
  for (std::string line; std::getline(lines, line);) page.Line(line);
  return page.Html();
}

}  // namespace pawnfield
