// What pages and files hold, to the byte. Each file of golden/ has scripts and what comes of them, and a
// person has read it through; behind "-- strict" stands what strict mode makes of it, where that is something
// else.
#include <gtest/gtest.h>

#include <clocale>
#include <locale>

#include "pdf/pdf_test_support.h"
#include "pdf/script.h"

namespace tarvane::pdf {
namespace {

// What a document, that the calls have been made on, is shown as, with the bytes of its file.
using Shown =
    std::function<std::string(const ScriptCase&, const tqrPDF&, const std::string& bytes, bool strict)>;

// Runs a script on a document in points, which begins at once where the script doesn't tell when.
std::string Run(const ScriptCase& script, bool strict, const Shown& shown) {
  ScratchFolder folder;
  SeenMessages messages;
  tqrPDF document(FixedSurroundings(&messages));
  document.PDFStrict(strict);
  document.PDFSetUnit(kPoint);
  document.PDFFileName(folder / "run.pdf");
  const bool begins = std::count(script.calls.begin(), script.calls.end(), "Begin") > 0;
  if (!begins) document.PDFBeginDoc();
  std::string faults;
  for (const std::string& call : script.calls) faults += Call(document, call);
  document.PDFEndDoc();
  std::string out = shown(script, document, FileBytes(folder / "run.pdf"), strict) + faults;
  for (const Message& message : messages.list)
    out += (message.icon == Icon::kStop ? "stop: " : "told: ") + message.title + "|" + message.text + "\r\n";
  return out;
}

// Writes the golden file anew and compares.
void ExpectScripts(const std::string& file, const Shown& shown) {
  std::string all;
  for (const ScriptCase& script : ReadScript(file)) {
    all += "== " + script.name + "\r\n";
    for (const std::string& call : script.calls) all += "> " + call + "\r\n";
    const std::string told = Run(script, false, shown);
    const std::string strict = Run(script, true, shown);
    all += told;
    if (strict != told) all += "-- strict\r\n" + strict;
  }
  ExpectGolden(file, all);
}

std::string FirstPage(const ScriptCase&, const tqrPDF&, const std::string& bytes, bool strict) {
  const size_t begin = bytes.find("stream\r\n") + 8;
  return bytes.substr(begin, bytes.find(strict ? "\r\nendstream" : "endstream") - begin);
}

TEST(Golden, Pages) { ExpectScripts("pages.txt", FirstPage); }

class CommaPoint : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(Golden, PagesAreTheSameInEveryLocale) {
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommaPoint));
  std::setlocale(LC_ALL, "de_DE.UTF-8");
  ExpectScripts("pages.txt", FirstPage);
  std::setlocale(LC_ALL, "C");
  std::locale::global(before);
}

TEST(Golden, Catalogs) {
  ExpectScripts("catalogs.txt", [](const ScriptCase&, const tqrPDF&, const std::string& bytes, bool) {
    const size_t begin = bytes.rfind("/Type /Catalog");
    return bytes.substr(begin, bytes.find("endobj", begin) - begin);
  });
}

// All settings that can be asked for.
TEST(Golden, Settings) {
  ExpectScripts("settings.txt", [](const ScriptCase&, const tqrPDF& d, const std::string&, bool) {
    const auto parts = [](const Rgb& rgb) { return std::vector<double>(rgb.begin(), rgb.end()); };
    const std::pair<const char*, std::vector<double>> groups[] = {
        {"unit", {double(d.PDFGetUnit())}},
        {"; page", {d.PDFGetPageWidth(), d.PDFGetPageHeight(), double(d.PDFPageNumber())}},
        {"; margins",
         {d.PDFGetLeftMargin(), d.PDFGetTopMargin(), d.PDFGetRightMargin(), d.PDFGetBottomMargin()}},
        {"; cell margin", {d.PDFGetCellMargin()}},
        {"; pen", {d.PDFGetX(), d.PDFGetY(), d.PDFTextHeight()}},
        {"; zoom", {d.PDFGetZoomMode()}},
        {"; layout", {double(d.PDFGetLayoutMode())}},
        {"; alignment", {double(d.PDFGetAlignement())}},
        {"; text", parts(d.PDFGetTextColor())},
        {"; line", parts(d.PDFGetLineColor())},
        {"; draw", parts(d.PDFGetDrawColor())}};
    std::string line;
    for (const auto& [name, values] : groups) {
      line += name;
      for (const double value : values) line += ' ' + FormatNumber(value, Mask::k0_000);
    }
    return line + "\r\n";
  });
}

// The files themselves stand beside the script; strict ones are read by others too.
TEST(Golden, Files) {
  ScratchFolder folder;
  ExpectScripts("files.txt",
                [&](const ScriptCase& script, const tqrPDF&, const std::string& bytes, bool strict) {
                  const std::string name = script.name + (strict ? "-strict.pdf" : ".pdf");
                  ExpectGolden(name, bytes);
                  WriteBytes(folder / name, bytes);
                  if (strict) ExpectSound(folder / name);
                  return std::string();
                });
}

// Every page above, its numbers that no reader takes among them, in one strict file.
TEST(Strict, AllPagesOfOneFileAreSound) {
  ScratchFolder folder;
  tqrPDF document;
  document.PDFStrict(true);
  document.PDFFileName(folder / "pages.pdf");
  document.PDFPathConfiguration(FontsFolder());
  document.PDFBeginDoc();
  for (const ScriptCase& script : ReadScript("pages.txt")) {
    for (const std::string& call : script.calls) {
      if (call != "Begin") Call(document, call);
    }
    document.PDFNewPage();
  }
  document.PDFEndDoc();
  ExpectSound(folder / "pages.pdf");
}

}  // namespace
}  // namespace tarvane::pdf
