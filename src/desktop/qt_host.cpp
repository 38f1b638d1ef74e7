#include "desktop/qt_host.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QInputDialog>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScreen>
#include <QSessionManager>
#include <QSettings>
#include <QShortcut>
#include <QStandardPaths>
#include <QTableView>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <array>
#include <cstdlib>

#include "desktop/access_keys.h"
#include "desktop/form_table.h"
#include "desktop/make.h"
#include "desktop/page_printer.h"
#include "desktop/text.h"
#include "desktop/theme.h"
#include "desktop/windows.h"

namespace tarvane::desktop {
namespace {

constexpr std::array<std::pair<Icon, QMessageBox::Icon>, 5> kIcons = {{
    {Icon::kNone, QMessageBox::NoIcon},
    {Icon::kInformation, QMessageBox::Information},
    {Icon::kQuestion, QMessageBox::Question},
    {Icon::kWarning, QMessageBox::Warning},
    {Icon::kError, QMessageBox::Critical},
}};
constexpr std::array<std::pair<Answer, QMessageBox::StandardButton>, 4> kButtons = {{
    {Answer::kYes, QMessageBox::Yes},
    {Answer::kNo, QMessageBox::No},
    {Answer::kOk, QMessageBox::Ok},
    {Answer::kCancel, QMessageBox::Cancel},
}};
// Programs that screens ask for by a word, each with those that serve for it; the first one found is started.
const std::array<std::pair<std::string_view, std::vector<const char*>>, 2> kPrograms = {{
    {"calc", {"gnome-calculator", "kcalc", "galculator", "mate-calc", "qalculate-gtk", "xcalc", "calc"}},
    {"notepad",
     {"gnome-text-editor", "gedit", "kwrite", "mousepad", "pluma", "xed", "featherpad", "notepad"}},
}};

template <typename From, typename To, std::size_t kCount>
To Lookup(const std::array<std::pair<From, To>, kCount>& table, From from) {
  for (const auto& [key, value] : table) {
    if (key == from) return value;
  }
  return table.front().second;
}

QMessageBox::StandardButton ButtonOf(Answer answer) { return Lookup(kButtons, answer); }

// "Links (*.tvs)|*.tvs|All|*.*" as Qt writes it.
QString QtFilter(std::string_view filter) {
  const QStringList parts = ToQt(filter).split('|');
  QStringList filters;
  for (qsizetype at = 0; at + 1 < parts.size(); at += 2) {
    const QString name = parts[at].section('(', 0, 0).trimmed();
    filters += QString("%1 (%2)").arg(name, QString(parts[at + 1]).replace(';', ' '));
  }
  return filters.join(";;");
}

QString PlaceKey(const Screen& screen) { return QString("windows/") + ToQt(screen.name()); }

}  // namespace

QtHost::QtHost() { FollowLogOut(); }
QtHost::~QtHost() = default;

QWidget* QtHost::TopWindow() const { return forms_.empty() ? nullptr : forms_.back()->window(); }

std::unique_ptr<QWidget> QtHost::MakeWindow(Screen& screen) {
  const auto ask = [this, &screen] {
    // Only the top window may close: those below it wait for it.
    if (forms_.empty() || &forms_.back()->screen() != &screen) return;
    const FormEntry* entry = FindForm(screen);
    if ((entry != nullptr && entry->closing_saves) || MayLeave(*forms_.back())) screen.UserClose();
  };
  if (screen.name() == "Form1") {
    auto window = std::make_unique<MainWindow>();
    window->close_asked = ask;
    return window;
  }
  auto window = std::make_unique<DialogWindow>(TopWindow());
  window->close_asked = ask;
  window->setWindowModality(Qt::ApplicationModal);
  return window;
}

// At a log-out the worker is asked as at the close button.
void QtHost::FollowLogOut() {
  QObject::connect(
      qGuiApp, &QGuiApplication::commitDataRequest, &log_out_,
      [this](QSessionManager& manager) {
        if (!manager.allowsInteraction()) return;
        if (!MayEnd()) manager.cancel();
        manager.release();
      },
      Qt::DirectConnection);
}

QtHost::Keep QtHost::AskToKeep(const std::string& what) {
  QMessageBox box(QMessageBox::Warning, ToQt(kProgramTitle), "Save the changes to " + ToQt(what) + "?",
                  QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, TopWindow());
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText("What was typed since the last save is lost otherwise.");
  box.button(QMessageBox::Discard)->setText("&Don't Save");
  box.setDefaultButton(QMessageBox::Save);
  box.setEscapeButton(QMessageBox::Cancel);
  const int pressed = box.exec();
  if (pressed == QMessageBox::Save) return Keep::kSave;
  return pressed == QMessageBox::Discard ? Keep::kDrop : Keep::kCancel;
}

bool QtHost::MayLeave(const Form& form) {
  const FormEntry* entry = FindForm(form.screen());
  if (entry == nullptr || entry->unsaved == nullptr) return true;
  Screen& screen = form.screen();
  const std::string what = entry->unsaved(screen);
  if (what.empty()) return true;
  const Keep keep = AskToKeep(what);
  if (keep != Keep::kSave) return keep == Keep::kDrop;
  bool saved = false;
  screen.Guard([&] {
    screen.LeaveFocus();
    entry->save(screen);
    saved = true;
  });
  return saved;
}

bool QtHost::MayEnd() {
  const std::vector<Form*> forms = forms_;
  return std::all_of(forms.rbegin(), forms.rend(), [this](const Form* form) { return MayLeave(*form); });
}

namespace {

// The mark of unsaved changes in the title.
void MarkUnsaved(Form& form, std::string (*unsaved)(Screen&)) {
  form.Follow([&form, unsaved] {
    QWidget* window = form.window();
    const QString title = window->windowTitle();
    if (!title.endsWith("[*]")) window->setWindowTitle(title + "[*]");
    window->setWindowModified(!unsaved(form.screen()).empty());
  });
}

}  // namespace

void QtHost::RunModal(Screen& screen) {
  const FormEntry* entry = FindForm(screen);
  if (entry == nullptr) throw Fault("No window is made for the screen " + screen.name() + " yet.");
  const std::unique_ptr<QWidget> window = MakeWindow(screen);
  Form form(screen, window.get());
  entry->build(form);
  if (entry->unsaved != nullptr) MarkUnsaved(form, entry->unsaved);
  QEventLoop loop;
  form.OnClosed([&loop] { loop.quit(); });
  AddTextSizeKeys(window.get());
  Place(form);
  forms_.push_back(&form);
  window->show();
  form.TakeFirstFocus();
  MakeAccessKeysUnique(*window);
  if (on_shown_) {
    QTimer::singleShot(0, &form, [this, &form] { on_shown_(form); });
  }
  if (!screen.is_closed()) loop.exec();
  KeepPlace(form);
  forms_.pop_back();
  form.Detach();
  window->hide();
  // Not every window manager gives the keyboard back by itself.
  if (QWidget* below = TopWindow()) below->activateWindow();
}

namespace {

// Where the columns of a table are kept: for as many as there are.
QString ColumnsKey(const Form& form, const QTableView& table) {
  const Control* grid = form.ControlOf(table);
  return QString("columns/%1/%2/%3")
      .arg(ToQt(form.screen().name()), grid == nullptr ? QString() : ToQt(grid->name()))
      .arg(table.horizontalHeader()->count());
}

// As the worker left them: their widths, their order, and which are seen.
void RestoreColumns(const Form& form) {
  for (QTableView* table : form.window()->findChildren<QTableView*>()) {
    const QByteArray kept = QSettings().value(ColumnsKey(form, *table)).toByteArray();
    if (!kept.isEmpty()) table->horizontalHeader()->restoreState(kept);
  }
}

void KeepColumns(const Form& form) {
  for (const QTableView* table : form.window()->findChildren<QTableView*>()) {
    if (form.ControlOf(*table) != nullptr)
      QSettings().setValue(ColumnsKey(form, *table), table->horizontalHeader()->saveState());
  }
}

}  // namespace

void QtHost::Place(const Form& form) const {
  QWidget* window = form.window();
  const FormEntry* entry = FindForm(form.screen());
  if (remembers_) RestoreColumns(form);
  if (remembers_ && entry->remembers_place) {
    const QByteArray kept = QSettings().value(PlaceKey(form.screen())).toByteArray();
    if (!kept.isEmpty() && window->restoreGeometry(kept)) return KeepOnScreen(*window);
  }
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return;
  const QSize room = screen->availableSize();
  if (qobject_cast<QMainWindow*>(window) != nullptr) {
    const QSize wanted(Digits(160), Quarters(190));
    window->resize(wanted.boundedTo(room));
    // With its frame it would stand out over the edge.
    if (wanted.width() >= room.width() || wanted.height() >= room.height()) {
      window->setWindowState(Qt::WindowMaximized);
    }
  } else {
    // A form that wants another size than its pieces has set it.
    const QSize size = window->testAttribute(Qt::WA_Resized) ? window->size() : window->sizeHint();
    window->resize(size.boundedTo(room - QSize(0, Quarters(7))));  // less the title bar
  }
}

void QtHost::KeepPlace(const Form& form) const {
  if (remembers_) KeepColumns(form);
  if (!remembers_ || !FindForm(form.screen())->remembers_place) return;
  QSettings().setValue(PlaceKey(form.screen()), form.window()->saveGeometry());
}

void QtHost::AddTextSizeKeys(QWidget* window) {
  const auto add = [&](const QList<QKeySequence>& keys, const std::function<int(int)>& change) {
    auto* shortcut = Make<QShortcut>(window);
    shortcut->setKeys(keys);
    QObject::connect(shortcut, &QShortcut::activated, window,
                     [this, change] { ChangeTextSize(change(QApplication::font().pointSize())); });
  };
  add({QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")}, [](int points) { return points + 1; });
  add({QKeySequence("Ctrl+-")}, [](int points) { return points - 1; });
  add({QKeySequence("Ctrl+0")}, [](int) { return Theme::kUsualTextSize; });
}

void QtHost::ChangeTextSize(int points) {
  SetTextSize(forms_, points);
  if (remembers_) SaveTheme(CurrentTheme());
}

void SetTextSize(const std::vector<Form*>& forms, int points) {
  Theme theme = CurrentTheme();
  theme.text_size = std::clamp(points, Theme::kSmallestText, Theme::kLargestText);
  ApplyTheme(theme);
  for (Form* form : forms) {
    form->Resize();
    KeepOnScreen(*form->window());
  }
}

void KeepOnScreen(QWidget& window) {
  const QScreen* screen = window.screen();
  if (screen == nullptr || window.isMaximized() || window.isFullScreen()) return;
  const QRect room = screen->availableGeometry();
  const QSize frame = window.frameGeometry().size() - window.size();
  const QSize title(0, frame.isNull() ? Quarters(7) : 0);  // a window that was never shown has no frame yet
  const QSize size = window.size().boundedTo(room.size() - frame - title);
  if (size != window.size()) window.resize(size);
  const QRect now = window.frameGeometry();
  const QPoint least = room.topLeft();
  const QPoint most = room.bottomRight() - QPoint(now.width() - 1, now.height() - 1);
  const QPoint place(std::clamp(now.left(), least.x(), std::max(least.x(), most.x())),
                     std::clamp(now.top(), least.y(), std::max(least.y(), most.y())));
  if (place != now.topLeft()) window.move(place);
}

void QtHost::Message(std::string_view title, std::string_view text, Icon icon) {
  QMessageBox box(Lookup(kIcons, icon), ToQt(title), LinesToQt(text), QMessageBox::Ok, TopWindow());
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

void QtHost::Hint(std::string_view title, std::string_view text, std::string_view about) {
  const auto [hint, fresh] = hints_.try_emplace(std::string(text), about);
  if (!fresh && hint->second == about) return;
  hint->second = about;
  Message(title, text, Icon::kNone);
}

Answer QtHost::Ask(const Question& question) {
  QMessageBox box(Lookup(kIcons, question.icon), ToQt(question.title), LinesToQt(question.text),
                  QMessageBox::NoButton, TopWindow());
  box.setTextFormat(Qt::PlainText);
  for (const Answer answer : question.answers) box.addButton(ButtonOf(answer));
  box.setDefaultButton(ButtonOf(question.preset));
  if (!question.answers.empty()) box.setEscapeButton(ButtonOf(question.answers.back()));
  const int pressed = box.exec();
  Answer given = question.answers.empty() ? Answer::kCancel : question.answers.back();
  for (const Answer answer : question.answers) {
    if (ButtonOf(answer) == pressed) given = answer;
  }
  const bool refused = given == Answer::kNo || given == Answer::kCancel;
  if (refused && !forms_.empty()) forms_.back()->PutFocusBack();
  return given;
}

std::optional<std::string> QtHost::Input(std::string_view title, std::string_view prompt,
                                         std::string_view initial) {
  bool accepted = false;
  const QString text = QInputDialog::getText(TopWindow(), ToQt(title), LinesToQt(prompt), QLineEdit::Normal,
                                             ToQt(initial), &accepted);
  if (accepted) return FromQt(text);
  if (!forms_.empty()) forms_.back()->PutFocusBack();
  return std::nullopt;
}

namespace {

// The worker's documents; where there is no such folder, what is the worker's own.
QDir Documents() {
  const QDir documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return documents.exists() ? documents : QDir::home();
}

// "*.xlsx" of "Spreadsheet (*.xlsx)": ".xlsx"; "" where the kind takes any name.
QString EndingOf(const QString& qt_filter) {
  const QString pattern = qt_filter.section('(', -1).section(')', 0, 0).section(' ', 0, 0);
  return pattern.startsWith("*.") && !pattern.endsWith('*') ? pattern.mid(1) : QString();
}

// With the ending of the chosen kind, where the name has none of those on offer.
QString WithEnding(const QString& name, const QString& kind_chosen, const QStringList& kinds) {
  const bool has_one = std::ranges::any_of(kinds, [&name](const QString& kind) {
    const QString ending = EndingOf(kind);
    return ending.isEmpty() || name.endsWith(ending, Qt::CaseInsensitive);
  });
  return has_one ? name : name + EndingOf(kind_chosen);
}

QString RunFileDialog(QFileDialog& dialog) {
  // The dialog comes as wide as its contents.
  dialog.resize(dialog.sizeHint());
  KeepOnScreen(dialog);
  if (dialog.exec() != QDialog::Accepted) return {};
  return dialog.selectedFiles().value(0);
}

}  // namespace

bool QtHost::MayReplace(const QString& file) {
  const QString text = QString("%1 already exists.\nDo you want to replace it?").arg(file);
  const Question question{"Save As", FromQt(text), {Answer::kYes, Answer::kNo}, Answer::kNo, Icon::kWarning};
  return Ask(question) == Answer::kYes;
}

std::optional<std::filesystem::path> QtHost::ChooseFile(FileChoice kind, std::string_view title,
                                                        std::string_view filter, std::string_view suggested) {
  const bool saves = kind == FileChoice::kSave;
  const QStringList kinds = QtFilter(filter).split(";;", Qt::SkipEmptyParts);
  QFileDialog dialog(TopWindow(), ToQt(title), Documents().path());
  dialog.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog.setNameFilters(kinds);
  if (!suggested.empty()) dialog.selectFile(ToQt(suggested));
  while (true) {
    const QString chosen = RunFileDialog(dialog);
    if (chosen.isEmpty()) break;
    const QString file = saves ? WithEnding(chosen, dialog.selectedNameFilter(), kinds) : chosen;
    // The dialog has asked about the name as it was typed.
    if (file == chosen || !QFileInfo::exists(file) || MayReplace(file)) {
      return std::filesystem::path(file.toStdU16String());
    }
  }
  if (!forms_.empty()) forms_.back()->PutFocusBack();
  return std::nullopt;
}

void QtHost::Beep() { QApplication::beep(); }

void QtHost::SetBusy(bool busy) {
  const bool is_busy = QApplication::overrideCursor() != nullptr;
  if (busy && !is_busy) QApplication::setOverrideCursor(Qt::WaitCursor);
  if (!busy && is_busy) QApplication::restoreOverrideCursor();
}

bool QtHost::ShowProgress(std::string_view what, std::int64_t done, std::int64_t total) {
  if (!progress_) progress_ = std::make_unique<ProgressWindow>();
  return progress_->Show(TopWindow(), ToQt(what), done, total);
}

void QtHost::EndProgress() { progress_.reset(); }

DateTime QtHost::Now() {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate date = now.date();
  const QTime time = now.time();
  return {MakeDay(date.year(), date.month(), date.day()), time.hour(), time.minute(), time.second()};
}

int QtHost::RandomDigit() { return static_cast<int>(QRandomGenerator::global()->bounded(10)); }

std::string QtHost::ClipboardText() { return FromQt(QApplication::clipboard()->text()); }

void QtHost::SetClipboardText(std::string_view text) { QApplication::clipboard()->setText(ToQt(text)); }

void QtHost::Launch(std::string_view target) {
  for (const auto& [word, programs] : kPrograms) {
    if (word != target) continue;
    for (const char* program : programs) {
      const QString found = QStandardPaths::findExecutable(program);
      if (!found.isEmpty() && QProcess::startDetached(found, {})) return;
    }
    throw Fault("No program for \"" + std::string(target) + "\" is installed.");
  }
  const QString text = ToQt(target);
  const QUrl url =
      QFileInfo::exists(text) ? QUrl::fromLocalFile(QFileInfo(text).absoluteFilePath()) : QUrl(text);
  if (url.scheme().isEmpty() || !QDesktopServices::openUrl(url)) {
    throw Fault("Nothing here can open \"" + std::string(target) + "\".");
  }
}

void QtHost::EndProcess() {
  for (const Form* form : forms_) KeepPlace(*form);
  // Neither destructors nor exit handlers run: what waits to be saved is dropped.
  std::_Exit(0);
}

}  // namespace tarvane::desktop
