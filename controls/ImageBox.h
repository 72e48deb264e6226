// A picture from a file, fitted into the control's place. What its bytes mean is for whoever shows it to
// know.
#pragma once

#include "controls/Controls.h"

namespace tarvik {

class ImageBox : public PictureBox {
 public:
  using PictureBox::PictureBox;

  /// The file on show; empty for none.
  Property<std::string> Picture{*this, "Picture"};
  Event<> DblClick{*this, "DblClick"};

  /// Shows what is in the file's bytes; nothing is shown of the former one.
  void Load(const std::string& path, std::string_view bytes) {
    Picture = path;
    Loaded(bytes);
  }
  Signal<std::string_view> Loaded;
};

}  // namespace tarvik
