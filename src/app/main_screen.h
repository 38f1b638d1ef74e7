#pragma once

#include <deque>
#include <filesystem>
#include <string_view>

#include "job/job_screen.h"

namespace tarvane {

// The program's frame: the job screen with its commands and the finder.
//   MainScreen screen(host, folder);
//   screen.RunAsMain();
// It ends by Host::EndProcess; what hasn't been saved is lost.
//
// In finder mode the finder covers the job and the toolbar is hidden; in job mode the finder is folded away.
class MainScreen : public JobScreen {
 public:
  MainScreen(Host& host, std::filesystem::path folder);

  bool in_job_mode() const { return !QuickFinderGrid.visible(); }

  // ---- Finder.
  Panel Frame2{this, "Frame2"};
  DropDownList CboFabSearch{this, "CboFabSearch", "<Category to Search>"};
  TextField FabSText{this, "FabSText"};
  Button CmdSearch{this, "CmdSearch", "Search"};
  Button CmdReset{this, "CmdReset", "Reset  Records"};
  DropDownList CboSalesPersonSearch{this, "CboSalesPersonSearch"};
  Button CmdFindSalesPersonsJobs{this, "CmdFindSalesPersonsJobs", "Find Sales Persons Jobs"};
  Button CMDLOAD{this, "CMDLOAD", "&Load Quick Finder"};
  TextField txtLastRecord{this, "txtLastRecord"};      // RefNo of the job closed last
  TableGrid QuickFinderGrid{this, "QuickFinderGrid"};  // alias MSFlexGrid4
  Label Label12{this, "Label12", -1, "Double click on a job to open it."};

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
  void Reset();
  void Exit();
  void ShowSplash();
  void ShowListAdmin();
  void ShowOptions();
  void ShowUpdates();
  void SendMail();
  void VisitWebSite();
  void AddCurtain();
  void EditItem();
  void RefreshAfterItem();  // what follows each of the item wizards
  void ShowQuickWizard();

 protected:
  void Load() override;
  bool MayClose() override;

 private:
  void MakeCommands();
  void SetFinderRules();
  void tbToolBarOpen();
  void tbToolBarclose();
  void SwitchMenus(bool job_open);
  void loadINI();
  void FillSalesPersons();
  void ReadSettings();
  void EditCurtain(const HeldGrid& grid);
  void NeedRecord() const;

  std::deque<Button> commands_;
};

}  // namespace tarvane
