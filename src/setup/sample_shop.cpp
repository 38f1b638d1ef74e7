#include "setup/sample_shop.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "app/main_screen.h"
#include "curtain_wizard/wizard.h"
#include "setup/quiet_host.h"
#include "setup/sample_extras.h"
#include "setup/sample_tables.h"
#include "setup/sample_wizard.h"
#include "text/fault.h"
#include "text_number/text_number.h"
#include "tools/enter_sales_person.h"

namespace tarvane::setup {

namespace {

constexpr std::chrono::sys_days kFirstDay = std::chrono::year(2025) / 11 / 3;
constexpr int kDaysBetweenJobs = 5;
constexpr int kWeeksToMake = 6;

// The jobs that stand out.
constexpr int kManor = 9;          // every room in use
constexpr int kJustAsked = 53;     // no items yet
constexpr int kFirstOpenJob = 36;  // those before are done, lost or waiting for something

Day DayOf(int job, int later = 0) { return kFirstDay + std::chrono::days(job * kDaysBetweenJobs + later); }
DateTime TimeOf(int job) { return {.day = DayOf(job), .hour = 9 + job % 8, .minute = job * 7 % 60}; }

bool IsLost(int job) { return job % 11 == 7; }
bool IsCompleted(int job) { return job < kFirstOpenJob && job % 5 != 2 && !IsLost(job); }

// The rooms of a job, from 1.
std::vector<int> RoomsOf(int job) {
  if (job == kJustAsked || job % 13 == 5) return {};
  const int count = job == kManor ? static_cast<int>(job::kRoomCount) : 1 + job * 7 % 4;
  const int stride = job % 4 == 3 ? 5 : 1;
  std::vector<int> rooms;
  rooms.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) rooms.push_back(1 + i * stride % static_cast<int>(job::kRoomCount));
  return rooms;
}

class SampleShop {
 public:
  explicit SampleShop(const std::filesystem::path& folder) : shop_(folder) {}

  void Fill() {
    host_.Await("frmSplash", [](Screen& splash) { splash.Close(); });
    host_.Await(screen_.name(), [this](Screen&) { FillJobs(); });
    screen_.RunAsMain();
  }

 private:
  void FillJobs() {
    Database::Transaction transaction(shop_.database());
    const int count = static_cast<int>(SampleCustomers().size());
    for (int job = 0; job < count; ++job) {
      host_.SetNow(TimeOf(job));
      StartJob(job);
      EnterCustomer(job);
      EnterRooms(job);
      EnterSingles(job);
      EnterExtras(host_, screen_, job);
      EnterTerms(job);
      EnterPayments(job);
      screen_.SaveRecord();
    }
    // The numbers that the last job's items used up.
    screen_.Data2.rows().Update();
    transaction.Commit();
  }

  void StartJob(int job) {
    host_.Await("FrmEnterSalesPerson", [job](Screen& screen) {
      auto& asked = dynamic_cast<tools::FrmEnterSalesPerson&>(screen);
      const std::size_t persons = asked.CboSalesPerson.entries().size();
      if (persons > 0) asked.CboSalesPerson.UserPick(static_cast<std::size_t>(job) % persons);
      asked.Command1.UserPress();
    });
    screen_.CommandButton("munNew2").UserPress();
  }

  void EnterCustomer(int job) {
    const SampleCustomer& customer = SampleCustomers()[static_cast<std::size_t>(job)];
    screen_.Name.UserType(customer.name);
    screen_.Company.UserType(customer.company);
    screen_.Address.UserType(customer.address);
    screen_.Town.UserType(customer.town);
    screen_.County.UserType(job % 9 == 0 ? "Mereshire" : "Ashfordshire");
    screen_.PostCode.UserType(customer.post_code);
    screen_.HomeTelephone.UserType(fmt::format("01632 960{:03}", 200 + job));
    if (job % 3 != 1) screen_.Mobile.UserType(fmt::format("07700 900{:03}", 300 + job));
    if (!customer.company.empty()) {
      screen_.WorksTelephone.UserType(fmt::format("01632 960{:03}", 400 + job));
      screen_.Fax.UserType(fmt::format("01632 960{:03}", 600 + job));
    }
    screen_.Email.UserType(customer.email);
    screen_.WebSite.UserType(customer.web_site);
    screen_.JobNotes.UserType(customer.notes);
  }

  void EnterRooms(int job) {
    int nth = 0;
    for (const int room : RoomsOf(job)) {
      screen_.SSTab1.UserSelect(room - 1);
      for (int item = 0; item <= (job + room) % 2; ++item) EnterItem(job, nth++);
    }
    screen_.SSTab1.UserSelect(0);
  }

  void EnterItem(int job, int nth) {
    const auto windows = SampleWindows();
    const SampleWindow& window =
        windows[static_cast<std::size_t>(job * 3 + job / 16 + nth * 5) % windows.size()];
    host_.Await("MainCWizard", [&window, job](Screen& screen) {
      EnterWindow(dynamic_cast<curtain_wizard::MainCWizard&>(screen), window, window.track + job % 7 * 2);
    });
    screen_.CommandButton("Command1", 0).UserPress();
  }

  void EnterSingles(int job) {
    const auto singles = SampleSingles();
    const int count = job == kJustAsked ? 0 : RoomsOf(job).empty() ? 4 : job % 4;
    for (int i = 0; i < count; ++i) {
      EnterSingle(host_, screen_, singles[static_cast<std::size_t>(job + i * 3) % singles.size()]);
    }
  }

  void EnterTerms(int job) {
    if (job % 6 == 4) screen_.DiscountPercent.UserType("5");
    if (job % 17 == 3) screen_.DiscountPercent.UserType("12.5");
    if (job % 8 == 6) screen_.DepositPercent.UserType("50");
    screen_.Lost.UserSet(IsLost(job));
    screen_.Completed.UserSet(IsCompleted(job));
    if (!IsLost(job) && job != kJustAsked) {
      screen_.CompletionDate.UserType(ShortDate(DayOf(job, kWeeksToMake * 7)));
      screen_.FittingDate.UserType(ShortDate(DayOf(job, kWeeksToMake * 7 + 3)));
    }
    const std::size_t done = IsCompleted(job) ? job::kCheckListCount : static_cast<std::size_t>(job % 8);
    for (std::size_t i = 0; i < done; ++i) screen_.CheckList[i].UserSet(true);
  }

  // Completed jobs have paid the deposit and then the rest; of the others some have paid their deposit.
  void EnterPayments(int job) {
    const bool completed = IsCompleted(job);
    if (IsLost(job) || (!completed && job % 3 != 0)) return;
    Pay(screen_.DepositPaid.Number(), job, 1);
    if (completed) Pay(screen_.Balance.Number(), job, kWeeksToMake * 7 + 3);
  }

  // As the payment screen, which is still to come, writes it.
  void Pay(double amount, int job, int later) {
    static constexpr std::string_view kKinds[] = {"Cash", "by Cheque"};
    if (amount <= 0) return;
    const std::string paid_before = screen_.PrePaid.text();
    screen_.PrePaid.SetText(Format2(NumberText(screen_.PrePaid.Number() + amount)));
    screen_.History.SetText(fmt::format(
        "{}\r\n{} Total Price {} Prev Paid {}\r\nPaid Today {} Balance {}\r\nPaid by: {}\r\n{}\r\n",
        screen_.History.text(), LongDate(DayOf(job, later)), screen_.Total.text(), paid_before,
        Format2(NumberText(amount)), screen_.Balance.text(), kKinds[(job + later) % 2],
        std::string(19, '-')));
  }

  QuietHost host_;
  Shop shop_;
  app::MainScreen screen_{host_, shop_};
};

}  // namespace

void FillSampleShop(const std::filesystem::path& folder) { SampleShop(folder).Fill(); }

}  // namespace tarvane::setup
