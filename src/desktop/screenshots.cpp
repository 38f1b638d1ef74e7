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
#include "desktop/qt_host.h"
#include "desktop/text.h"
#include "desktop/theme.h"
#include "tools/enter_sales_person.h"
#include "tools/list_admin.h"
#include "tools/options.h"

namespace tarvane {
namespace {

// Nobody is there to answer: messages are passed over, questions get their preset.
class SilentHost : public QtHost {
 public:
  void Message(std::string_view, std::string_view, Icon) override {}
  Answer Ask(const Question& question) override { return question.preset; }
  [[noreturn]] void EndProcess() override { std::_Exit(0); }
};

class Photographer {
 public:
  Photographer(SilentHost& host, MainScreen& main, QDir folder, const char* scheme)
      : host_(host), main_(main), folder_(std::move(folder)), scheme_(scheme) {
    host_.OnShown([this](Form& form) { Visit(form); });
  }
  int failures() const { return failures_; }

 private:
  void Take(Form& form, const char* name) {
    // Twice: what becomes visible may ask for another layout.
    for (int i = 0; i < 2; ++i) {
      form.Flush();
      QCoreApplication::sendPostedEvents();
      QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    const QString file = folder_.filePath(QString("%1-%2.png").arg(name, scheme_));
    if (form.window()->grab().save(file)) return;
    std::cerr << "tarvane: can't write " << FromQt(file) << "\n";
    ++failures_;
  }

  void Visit(Form& form) {
    const std::string& name = form.screen().name();
    if (name == "Form1") return VisitMain(form);
    if (name == "MainCWizard") {
      VisitWizard(form);
    } else {
      if (name == "FrmListAdmin") static_cast<FrmListAdmin&>(form.screen()).CMDLOAD.Press();
      form.window()->resize(form.window()->sizeHint());
      Take(form, picture_);
    }
    form.screen().Close();
  }

  void VisitMain(Form& form) {
    form.window()->setWindowState(Qt::WindowNoState);
    form.window()->resize(1366, 768);
    Take(form, "main-finder");
    main_.OpenRecord();
    constexpr const char* kPages[] = {"main-customer", "main-singles", "main-rooms", "main-history"};
    for (int page = 0; page < 4; ++page) {
      main_.SSTab2.Select(page);
      if (page == 2) main_.RoomItemGrid[0].UserSelectRow(1);
      Take(form, kPages[page]);
    }
    main_.SSTab2.Select(0);
    Show<frmOptions>("settings", main_);
    Show<FrmListAdmin>("option-lists", main_.folder());
    Show<FrmEnterSalesPerson>("sales-person", main_);
    VisitItem();
    main_.Close();
  }

  template <typename Shown, typename... Arguments>
  void Show(const char* picture, Arguments&&... arguments) {
    picture_ = picture;
    Shown screen(host_, std::forward<Arguments>(arguments)...);
    main_.Guard([&] { main_.ShowModal(screen); });
  }

  // The first curtain of the first room, as Edit Item opens it.
  void VisitItem() {
    picture_ = "preferences";
    MainCWizard wizard(host_, main_);
    FrmPreferences preferences(host_, wizard);
    main_.Guard([&] { main_.ShowModal(preferences); });
    main_.RoomItemGrid[0].Select(1);
    main_.Guard([&] { main_.EditItem(); });
  }

  void VisitWizard(Form& form) {
    auto& wizard = static_cast<MainCWizard&>(form.screen());
    form.window()->resize(1280, 740);
    for (int step = 0; step < MainCWizard::kSteps; ++step) {
      if (step > 0) wizard.CmdNext.Press();
      if (wizard.AddTrims.shown()) wizard.AddTrims.UserSet(true);
      if (wizard.CmdGetInfo.shown()) wizard.CmdGetInfo.Press();
      if (wizard.CostingGrid.RowCount() > 0) wizard.CostingGrid.UserSelectRow(1);
      Take(form, FromQt(QString("wizard-step-%1").arg(step + 1)).c_str());
      if (wizard.AddTrims.on()) wizard.AddTrims.UserSet(false);
    }
  }

  SilentHost& host_;
  MainScreen& main_;
  QDir folder_;
  QString scheme_;
  const char* picture_ = "splash";
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
    MainScreen main(host, folder);
    Photographer photographer(host, main, directory, name);
    main.RunAsMain();
    failures += photographer.failures();
  }
  return failures == 0 ? 0 : 1;
}

}  // namespace tarvane
