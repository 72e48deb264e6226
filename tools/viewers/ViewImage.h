// The image viewer, for the picture of a game's key layout, and the window in which its picture is picked.
#pragma once

#include "controls/ImageBox.h"
#include "controls/Menu.h"
#include "workbench/ToolForm.h"

namespace tarvik {

class ViewImage : public ToolForm {
 public:
  explicit ViewImage(Workbench& bench, Shell& shell);

  Menus menus;
  ImageBox Image1{*this, "Image1"};

  void Form_Load();
  void Form_Activate() { shell_.HideToolbar(); }
  void Form_Resize() { Image1.Move(0, 0, ScaleWidth, ScaleHeight); }
  void Image1_DblClick() { mnuImageEdit_Click(); }
  void mnuFileClose_Click() { shell_.CloseTool(*this); }
  void mnuFileExit_Click() { shell_.CloseProgram(); }
  void mnuImageLoad_Click();
  void mnuImageRefresh_Click() { ShowPicture(); }
  void mnuImageEdit_Click();
  void mnuHelpViewer_Click();

  [[nodiscard]] const Menus* MenuBar() const override { return &menus; }

 private:
  /// Shows the picture that is set, or says that it is missing: false.
  bool ShowPicture();
};

class SelectPictureForm : public ToolForm {
 public:
  explicit SelectPictureForm(Workbench& bench, Shell& shell);

  ComboBox Drive1{*this, "Drive1"};
  /// The folder on show below the ones it lies in, and its own folders below it.
  ListBox Dir1{*this, "Dir1"};
  ListBox File1{*this, "File1"};
  ImageBox ImagePreview{*this, "ImagePreview"};
  Label Label1{*this, "Label1"};  ///< the picked file
  CommandButton Command1{*this, "Command1", "Cancel", &SelectPictureForm::Close};
  CommandButton Command2{*this, "Command2", "OK", &SelectPictureForm::Command2_Click};

  /// The folder that Dir1 shows.
  Property<std::string> Path{*this, "Path"};

  void Form_Load();
  void Drive1_Change();
  void Dir1_DblClick();
  void file1_Click();
  void Command2_Click();

 private:
  void ShowFolder(const std::string& path);

  std::vector<std::string> folders_;  // of the rows of Dir1
  std::vector<Connection> connections_;
};

}  // namespace tarvik
