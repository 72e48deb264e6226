// A page of the preferences that edits a kept list, such as the favourites: the records' names, and a box for
// each part of the record in hand.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "controls/Controls.h"
#include "workbench/Workbench.h"

namespace tarvik {

class KeptListPage {
 public:
  /// What the page consists of.
  struct Traits {
    RecentList& list;
    ListBox& rows;
    Label& hint;  ///< how one comes to a first record
    std::function<void()> save;
    std::vector<TextBox*> parts;   ///< the boxes of a record's parts, in their order
    std::vector<CheckBox*> ticks;  ///< those of the parts behind them
    CommandButton& remove;
    std::vector<Control*> others;  ///< what else goes grey without a row
    const char* menu;              ///< what a record is removed from
    const char* removal;           ///< the procedure that the error record names for it
  };

  KeptListPage(Workbench& bench, Traits traits);

  /// The list anew, with its first row in hand as far as there is one.
  void Begin() { Show(0); }
  /// No row is in hand.
  void Disable() { Show(-1); }
  /// Looks for a file, or without a filter for a folder, for a part of the record in hand.
  void Choose(std::size_t part, const std::string& filter);

 private:
  void Attach();
  void Show(int row);
  void Fill(int row);
  void ShowRecord();
  /// Takes the record in hand out of the list, once the user agrees.
  void Remove();

  Workbench& bench_;
  Traits traits_;
  bool filling_ = false;  // the page itself puts a record into the boxes
  Connection rowChanged_;
};

}  // namespace tarvik
