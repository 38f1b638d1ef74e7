#include "desktop/screenshots.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QTimer>
#include <QWidget>
#include <iostream>

#include "app/main_screen.h"
#include "curtain_wizard/frm_preferences.h"
#include "curtain_wizard/wizard.h"
#include "desktop/form_table.h"
#include "desktop/qt_host.h"
#include "desktop/text.h"
#include "desktop/theme.h"
#include "tools/enter_sales_person.h"
#include "tools/list_admin.h"
#include "tools/options.h"

namespace tarvane::desktop {
namespace {

// Nobody is there to answer: messages are passed over, questions get their preset.
class SilentHost : public QtHost {
 public:
  void Message(std::string_view, std::string_view, Icon) override {}
  Answer Ask(const Question& question) override { return question.preset; }
  [[noreturn]] void EndProcess() override { std::_Exit(0); }
};

// Walks along all forms: the main screen's pages first, then what it opens, in turn.
class Photographer {
 public:
  Photographer(SilentHost& host, app::MainScreen& main, const QDir& folder, const char* scheme)
      : main_(main), folder_(folder), scheme_(scheme) {
    host.OnShown([this](Form& form) { Visit(form); });
  }
  int failures() const { return failures_; }

 private:
  void Take(Form& form, std::string_view what, int number = 0) {
    // Twice: what becomes visible may ask for another layout.
    for (int i = 0; i < 2; ++i) {
      form.Flush();
      QCoreApplication::sendPostedEvents();
      QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    QString name = ToQt(FindForm(form.screen())->picture);
    if (!what.empty()) name += "-" + ToQt(what);
    if (number > 0) name += QString::number(number);
    const QString file = folder_.filePath(QString("%1-%2.png").arg(name, scheme_));
    if (form.window()->grab().save(file)) return;
    std::cerr << "tarvane: can't write " << FromQt(file) << "\n";
    ++failures_;
  }

  void Visit(Form& form) {
    if (&form.screen() == &main_) return VisitMain(form);
    if (auto* wizard = dynamic_cast<curtain_wizard::MainCWizard*>(&form.screen())) {
      VisitWizard(form, *wizard);
    } else {
      if (auto* lists = dynamic_cast<tools::FrmListAdmin*>(&form.screen())) lists->Lists.CMDLOAD.Press();
      const bool fixed = !FindForm(form.screen())->remembers_place;
      const QSize usual = fixed ? QSize() : QSize(1280, 700);
      form.window()->resize(form.window()->sizeHint().expandedTo(usual));
      Take(form, "");
    }
    form.screen().Close();
  }

  void VisitMain(Form& form) {
    form.window()->setWindowState(Qt::WindowNoState);
    form.window()->resize(1366, 768);
    Take(form, "finder");
    main_.OpenRecord();
    constexpr const char* kPages[] = {"customer", "singles", "rooms", "history"};
    for (int page = 0; page < 4; ++page) {
      main_.SSTab2.Select(page);
      if (page == 2) main_.RoomItemGrid[0].UserSelectRow(1);
      Take(form, kPages[page]);
    }
    main_.SSTab2.Select(0);
    for (const FormEntry& entry : Forms()) {
      if (entry.show != nullptr) main_.Guard([&] { entry.show(main_); });
    }
    main_.Close();
  }

  void VisitWizard(Form& form, curtain_wizard::MainCWizard& wizard) {
    form.window()->resize(1280, 740);
    for (int step = 0; step < curtain_wizard::MainCWizard::kSteps; ++step) {
      if (step > 0) wizard.CmdNext.Press();
      if (wizard.AddTrims.shown()) wizard.AddTrims.UserSet(true);
      if (wizard.CmdGetInfo.shown()) wizard.CmdGetInfo.Press();
      if (wizard.CostingGrid.RowCount() > 0) wizard.CostingGrid.UserSelectRow(1);
      Take(form, "step-", step + 1);
      if (wizard.AddTrims.on()) wizard.AddTrims.UserSet(false);
    }
  }

  app::MainScreen& main_;
  QDir folder_;
  QString scheme_;
  int failures_ = 0;
};

}  // namespace

int TakeScreenshots(const std::filesystem::path& folder, const std::filesystem::path& pictures) {
  const QDir directory(QString::fromStdU16String(pictures.u16string()));
  if (!directory.mkpath(".")) throw Fault("The folder " + pictures.string() + " can't be made.");
  int failures = 0;
  constexpr std::pair<const char*, ColourScheme> kSchemes[] = {{"light", ColourScheme::kLight},
                                                               {"dark", ColourScheme::kDark}};
  for (const auto& [name, scheme] : kSchemes) {
    ApplyTheme({scheme, CurrentTheme().text_size});
    SilentHost host;
    Shop shop(folder);
    app::MainScreen main(host, shop);
    Photographer photographer(host, main, directory, name);
    main.RunAsMain();
    failures += photographer.failures();
  }
  return failures == 0 ? 0 : 1;
}

}  // namespace tarvane::desktop
