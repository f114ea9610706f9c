// Makes the pages of the operator's manual from its texts: one .html for each .md, the licence, and the pictures.
// Usage: pawnfield_manual_pages TEXTS LICENCE PAGES

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>

#include "markdown.h"

namespace pawnfield {
namespace {

namespace fs = std::filesystem;

constexpr const char* kHead = R"(<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><title>%TITLE%</title>
<style>
body { background: #0E1320; color: #E6EAF2; font-family: "Inter", sans-serif; font-size: 15px; line-height: 140%; }
h1 { color: #F2B84B; font-size: 27px; } h2 { color: #F2B84B; font-size: 20px; margin-top: 26px; }
h3 { font-size: 16px; margin-top: 18px; }
a { color: #8FB7FF; } code { color: #FFE0A0; }
th { color: #F2B84B; text-align: left; padding: 5px 14px 5px 0; }
td { padding: 5px 14px 5px 0; vertical-align: top; }
li { margin-bottom: 4px; }
</style></head><body>
)";

std::string Read(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("can't read " + path.string());
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

void WritePage(const fs::path& path, const std::string& title, const std::string& body, bool isContents) {
  std::string head = kHead;
  const std::string mark = "%TITLE%";
  head.replace(head.find(mark), mark.size(), EscapeHtml(title));
  std::ofstream file(path, std::ios::binary);
  file << head << body;
  if (!isContents) file << "<p><a href=\"index.html\">Contents of the manual</a></p>\n";
  file << "</body></html>\n";
  if (!file.flush()) throw std::runtime_error("can't write " + path.string());
}

void MakePages(const fs::path& texts, const fs::path& licence, const fs::path& pages) {
  fs::create_directories(pages / "pictures");
  for (const fs::directory_entry& entry : fs::directory_iterator(texts)) {
    if (entry.path().extension() != ".md") continue;
    const std::string text = Read(entry.path());
    const std::string stem = entry.path().stem().string();
    WritePage(pages / (stem + ".html"), TitleOf(text), HtmlOf(text), stem == "index");
  }
  WritePage(pages / "licence.html", "Licence",
            "<h1>Licence</h1>\n<pre style=\"white-space: pre-wrap\">" + EscapeHtml(Read(licence)) + "</pre>\n", false);
  if (fs::exists(texts / "pictures")) {
    fs::copy(texts / "pictures", pages / "pictures",
             fs::copy_options::recursive | fs::copy_options::overwrite_existing);
  }
}

}  // namespace
}  // namespace pawnfield

int main(int argc, char** argv) {
  if (argc != 4) {
    std::cerr << "usage: pawnfield_manual_pages TEXTS LICENCE PAGES\n";
    return 2;
  }
  try {
    pawnfield::MakePages(argv[1], argv[2], argv[3]);
  } catch (const std::exception& error) {
    std::cerr << "pawnfield_manual_pages: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
