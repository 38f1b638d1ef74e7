#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "printing/letter_tokens.h"
#include "screen/rich_text_box.h"
#include "screen/screen.h"
#include "shop/shop.h"

namespace tarvane::printing {

// Edits the form letters of the program folder, one at a time. A letter that wasn't changed keeps the bytes
// that its word processor wrote.
class FrmEditTemp : public Screen {
 public:
  static constexpr std::string_view kName = "FrmEditTemp";
  static constexpr std::string_view kNotice = "Tarvane Search";  // the title of NoticeText

  FrmEditTemp(Host& host, Shop& shop);

  // What is told before the screen is shown.
  static std::string NoticeText(const Shop& shop);

  DropDownList CboTemplates{this, "CboTemplates", "<Select Then Load>"};
  Button CmdLoad{this, "CmdLoad", "&Load"};
  DropDownList CboTokens{this, "CboTokens", "<Insert Token>"};  // a pick puts the token in at the caret
  Button CmdSave{this, "CmdSave", "&Save"};
  Button CmdCancel{this, "CmdCancel", "&Close"};
  RichTextBox RichTextBox1{this, "RichTextBox1"};
  Label Messages{this, "Messages"};  // which letter is here, and what became of it

  // What is loaded has changes that aren't saved.
  bool changed() const { return loaded_.has_value() && RichTextBox1.changed(); }
  // As it is called in the list; "" where none is loaded.
  std::string_view letter() const;
  // False where the worker didn't want the file of somebody else replaced. Faults where it can't be written;
  // the file is as it was then.
  bool Save();

 private:
  struct Loaded {
    std::size_t entry = 0;
    std::string rtf;  // the file's bytes
  };
  void LoadLetter();
  void InsertToken();
  std::filesystem::path LoadedFile() const;
  bool MayWrite(const std::optional<std::string>& present);
  void TellSplitTokens();

  Shop& shop_;
  std::optional<Loaded> loaded_;
};

}  // namespace tarvane::printing
