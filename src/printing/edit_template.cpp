#include "printing/edit_template.h"

#include <algorithm>
#include <array>

#include "printing/letter_file.h"
#include "rich_text/rtf.h"

namespace tarvane::printing {
namespace {

struct Template {
  std::string_view entry;
  LetterKind kind;
};
constexpr std::array kTemplates = {
    Template{"Default Estimate", LetterKind::kEstimate},
    Template{"Default Statement", LetterKind::kStatement},
    Template{"Default Reminders", LetterKind::kReminder},
};

// One that the worker can put in; the other form of the date is for those who have it already.
bool IsOffered(const LetterToken& token) { return token.token != "#xx/xx/xx#"; }

}  // namespace

FrmEditTemp::FrmEditTemp(Host& host, Shop& shop) : Screen(host, std::string(kName)), shop_(shop) {
  SetTitle("Tarvane Edit Templates");
  std::vector<std::string> entries;
  entries.reserve(std::size(kTemplates));
  for (const Template& each : kTemplates) entries.emplace_back(each.entry);
  CboTemplates.SetEntries(std::move(entries));
  for (DropDownList* list : {&CboTemplates, &CboTokens}) list->SetTypingAllowed(false);
  RichTextBox1.SetReadOnly(true);
  CboTokens.SetEnabled(false);
  CmdSave.SetEnabled(false);
  CmdLoad.OnClicked([this] { LoadLetter(); });
  CmdSave.OnClicked([this] { Save(); });
  CmdCancel.OnClicked([this] { Close(); });
  CboTokens.OnPicked([this] { InsertToken(); });
}

std::string FrmEditTemp::NoticeText(const Shop& shop) {
  return "Please note this editor is very basic you can use MS Word etc \n"
         "to edit these .RTF files.\n"
         "Using word etc go to " +
         shop.folder().string() + "\nand double on the file you wish to edit.";
}

std::string_view FrmEditTemp::letter() const {
  return loaded_ ? kTemplates[loaded_->entry].entry : std::string_view();
}

std::filesystem::path FrmEditTemp::LoadedFile() const {
  return shop_.File(FormOf(kTemplates[loaded_->entry].kind).file);
}

void FrmEditTemp::LoadLetter() {
  const auto* chosen = std::ranges::find(kTemplates, CboTemplates.text(), &Template::entry);
  if (chosen == kTemplates.end()) {
    Message("Choose one of the templates first.", title());
    return;
  }
  if (changed() && !AskYesNo(title(),
                             std::string(letter()) + " was changed and isn't saved. Load " +
                                 CboTemplates.text() + " and lose the changes?",
                             Answer::kNo, Icon::kWarning)) {
    return;
  }
  std::optional<std::string> rtf = ReadLetterFile(*this, shop_, FormOf(chosen->kind).file);
  if (!rtf) return;
  RichTextBox1.SetDocument(rich_text::ReadRtf(*rtf));
  loaded_ = {static_cast<std::size_t>(chosen - kTemplates.begin()), *std::move(rtf)};
  RichTextBox1.SetReadOnly(false);
  std::vector<std::string> tokens;
  for (const LetterToken& token : LetterTokens(chosen->kind, {})) {
    if (IsOffered(token)) tokens.emplace_back(token.token);
  }
  CboTokens.SetEntries(std::move(tokens));
  CboTokens.SetEnabled(true);
  CmdSave.SetEnabled(true);
  Messages.SetCaption(std::string(letter()) + ": " + LoadedFile().filename().string());
  SetFocus(RichTextBox1);
}

void FrmEditTemp::InsertToken() {
  const rich_text::CharStyle style = RichTextBox1.CurrentStyle();
  RichTextBox1.Replace(
      RichTextBox1.selection(),
      rich_text::FromPlainText(CboTokens.text(), style, RichTextBox1.document().fonts[style.font]));
  CboTokens.SetText("<Insert Token>");
  SetFocus(RichTextBox1);
}

bool FrmEditTemp::MayWrite(const std::optional<std::string>& present) {
  if (!present || *present == loaded_->rtf) return true;
  return AskYesNo(title(),
                  LoadedFile().filename().string() +
                      " was changed by another program since it was loaded. Replace it by what is here?",
                  Answer::kNo, Icon::kWarning);
}

bool FrmEditTemp::Save() {
  if (!loaded_) return true;
  const std::filesystem::path file = LoadedFile();
  const std::optional<std::string> present = ReadFile(file);
  if (RichTextBox1.changed() || !present) {
    if (!MayWrite(present)) return false;
    std::string rtf = RichTextBox1.changed() ? rich_text::WriteRtf(RichTextBox1.document()) : loaded_->rtf;
    ReplaceFile(file, rtf);
    loaded_->rtf = std::move(rtf);
    RichTextBox1.SetUnchanged();
  }
  Messages.SetCaption("Saved: " + file.filename().string());
  TellSplitTokens();
  return true;
}

void FrmEditTemp::TellSplitTokens() {
  std::string split;
  const auto tokens = LetterTokens(kTemplates[loaded_->entry].kind, {});
  for (const std::string_view token : SplitTokens(RichTextBox1.document().text, loaded_->rtf, tokens)) {
    split.append(split.empty() ? "" : ", ").append(token);
  }
  if (split.empty()) return;
  Message("Saved. But a part of " + split +
              " looks otherwise than the rest, and so it will stay in the letters as it stands. Give all of "
              "it one look, or type it anew.",
          title(), Icon::kWarning);
}

}  // namespace tarvane::printing
