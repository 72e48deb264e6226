// From a name to where it is defined, and from there to where it is used.
#pragma once

#include "workbench/FileModels.h"

namespace tarvik {

class Definitions {
 public:
  Definitions(Documents& documents, const FileModels& models) : documents_(documents), models_(models) {}

  struct Place {
    Document* document;
    Range name;
    std::string words;  ///< "Joystick 12:  BTN S1 Fire"
  };

  /// Where the name at the caret of the file on top leads to: from a use to what defines it, from a
  /// definition to all uses. Empty where there is no name, or nothing else of that name.
  [[nodiscard]] std::vector<Place> FromCaret() const;
  /// Mentions of a name, each with its line.
  [[nodiscard]] std::vector<Place> Describe(std::span<const model::Mention> mentions) const;
  void GoTo(const Place& place);

 private:
  Documents& documents_;
  const FileModels& models_;
};

}  // namespace tarvik
