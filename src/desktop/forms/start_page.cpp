#include "desktop/forms/start_page.h"

#include <QDialog>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <memory>

#include "desktop/icons.h"
#include "desktop/make.h"
#include "desktop/text.h"
#include "desktop/theme.h"
#include "screen/screen.h"

namespace tarvane::desktop {
namespace {

QLabel* Paragraph(const std::string& text, int percent = 100) {
  auto* label = Make<QLabel>(ToQt(text));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  QFont font;
  font.setPointSizeF(font.pointSizeF() * percent / 100);
  font.setBold(percent > 100);
  label->setFont(font);
  return label;
}

QLayout* Buttons(QDialog& page, int& chosen) {
  constexpr std::pair<const char*, StartChoice> kChoices[] = {
      {"&Choose another folder", StartChoice::kOtherFolder},
      {"&Try again", StartChoice::kTryAgain},
      {"&Quit", StartChoice::kQuit},
  };
  auto row = std::make_unique<QHBoxLayout>();
  row->addStretch();
  for (const auto& [caption, choice] : kChoices) {
    auto* button = Make<QPushButton>(caption);
    button->setDefault(choice == StartChoice::kOtherFolder);
    QObject::connect(button, &QPushButton::clicked, &page, [&page, &chosen, choice = choice] {
      chosen = static_cast<int>(choice);
      page.accept();
    });
    row->addWidget(button);
  }
  return row.release();
}

}  // namespace

StartChoice ShowStartPage(const ShopTrouble& trouble) {
  QDialog page;
  page.setWindowTitle(ToQt(kProgramTitle));
  page.setWindowFlag(Qt::WindowMinMaxButtonsHint);
  int chosen = static_cast<int>(StartChoice::kQuit);  // also by the window's close button and Escape
  auto* picture = Make<QLabel>();
  picture->setPixmap(WindowIcon().pixmap(QSize(Quarters(12), Quarters(12))));
  auto texts = std::make_unique<QVBoxLayout>();
  texts->setSpacing(Quarters(3));
  texts->addWidget(Paragraph(trouble.what, 150));
  texts->addWidget(Paragraph(trouble.why));
  texts->addWidget(Paragraph(trouble.help));
  texts->addStretch();
  auto top = std::make_unique<QHBoxLayout>();
  top->setSpacing(Quarters(5));
  top->addWidget(picture, 0, Qt::AlignTop);
  top->addLayout(texts.release(), 1);
  auto* all = Make<QVBoxLayout>(&page);
  all->setContentsMargins(Quarters(6), Quarters(6), Quarters(6), Quarters(4));
  all->addLayout(top.release(), 1);
  all->addLayout(Buttons(page, chosen));
  page.resize(Digits(72), Quarters(56));
  page.exec();
  return static_cast<StartChoice>(chosen);
}

std::filesystem::path AskForFolder(const std::filesystem::path& now) {
  const QString chosen = QFileDialog::getExistingDirectory(nullptr, "The shop's folder",
                                                           QString::fromStdU16String(now.u16string()));
  return {chosen.toStdU16String()};
}

}  // namespace tarvane::desktop
