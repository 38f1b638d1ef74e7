#pragma once

#include <deque>
#include <string_view>

#include "job/job_screen.h"
#include "screen/finder.h"

namespace tarvane::app {

// The program's frame: the job screen with its commands and the finder.
//   Shop shop(folder);
//   MainScreen screen(host, shop);
//   screen.RunAsMain();
// It ends by Host::EndProcess; what hasn't been saved is lost.
//
// In finder mode the finder covers the job and the toolbar is hidden; in job mode the finder is folded away.
class MainScreen : public job::JobScreen {
 public:
  MainScreen(Host& host, Shop& shop);

  bool in_job_mode() const { return !QuickFinderGrid.visible(); }

  // ---- Finder.
  Panel Frame2{this, "Frame2"};
  Finder JobFinder;
  DropDownList CboSalesPersonSearch{&Frame2, "CboSalesPersonSearch", kNotBuilt};
  Button CmdFindSalesPersonsJobs{&Frame2, "CmdFindSalesPersonsJobs", "Find Sales Persons Jobs", kNotBuilt};
  Button CMDLOAD{&Frame2, "CMDLOAD", "&Load Quick Finder", kNotBuilt};
  TextField txtLastRecord{&Frame2, "txtLastRecord"};      // RefNo of the job closed last
  TableGrid QuickFinderGrid{&Frame2, "QuickFinderGrid"};  // alias MSFlexGrid4
  Label Label12{&Frame2, "Label12", -1, "Double click on a job to open it."};

  Panel tbToolBar{this, "tbToolBar"};

  // The button of a command (commands.h); faults where there is none of that name.
  Button& CommandButton(std::string_view name, int index = -1);

  // ---- Operations of the commands.
  void AddNewJob();  // job mode, first page, NewRecord
  void NewRecord();
  void SaveRecord();
  void NextRecord();
  void PreviousRecord();
  void OpenRecord();   // the finder is folded away
  void CloseRecord();  // and comes back with all jobs
  void Exit();
  void ShowUpdates();
  void SendMail();
  void VisitWebSite();
  void AddCurtain();
  void AddBlind();
  void EditItem();
  void RefreshAfterItem();  // what follows each of the item wizards
  void ShowQuickWizard();
  void AddSingleItem();
  void UpdateSingleItem();  // the one that is selected; nothing where there is none

 protected:
  void Load() override;
  bool JobIsOpen() const override { return in_job_mode(); }
  bool MayClose() override;

 private:
  void MakeCommands();
  void SetItemRules();
  void SetFinderRules();
  void tbToolBarOpen();
  void tbToolBarclose();
  void SwitchMenus(bool job_open);
  void loadINI();
  void FillSalesPersons();
  void ReadSettings();
  void NeedRecord() const;
  void JobsAreBack();

  std::deque<Button> commands_;
};

}  // namespace tarvane::app
