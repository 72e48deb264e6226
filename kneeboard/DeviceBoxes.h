// What stands in the boxes of a kneeboard: the controls and scales of a device, the flags, the settings.
#pragma once

#include <vector>

#include "kneeboard/Box.h"
#include "kneeboard/Options.h"

namespace tarvik::kneeboard {

/// Layers that are told together; none stands for all.
using LayerSet = std::vector<Layer>;

/// A box for each label of the drawing, in the order of the controls, and one for each control and scale
/// without a label. Of some layers there is what these alone do, and no control that does nothing.
[[nodiscard]] std::vector<BoxContent> BoxesOf(const DevicePage& device, const LayerSet& only,
                                              const Options& options);

/// The layers in which the device does something, each once, the common one first.
[[nodiscard]] std::vector<Layer> LayersOf(const DevicePage& device);

/// The same, as they share pages: layers with few boxes stand together.
[[nodiscard]] std::vector<LayerSet> PagesOfLayers(const DevicePage& device, const Options& options);

/// "S3 held in, dogfight switch up"; "All layers" for what they share.
[[nodiscard]] std::string NameOf(const Layer& layer);
[[nodiscard]] std::string NameOf(const LayerSet& layers);

/// A box for each scale.
[[nodiscard]] std::vector<BoxContent> ScaleBoxesOf(const DevicePage& device, const Options& options);

/// The flags as a table in words, and the settings. None of those that there are not.
[[nodiscard]] std::vector<BoxContent> FileBoxesOf(const Contents& contents, const Options& options);

/// The keys of something sent with the letters of its modifiers, or nothing where keys are not wanted.
[[nodiscard]] std::string KeysOf(const Deed& deed, const std::string& manner, const Options& options);
/// Its words, or its keys where it has none.
[[nodiscard]] std::string WordsOf(const Deed& deed);

/// "1st" for 1; empty for 0.
[[nodiscard]] std::string OrdinalOf(std::uint8_t turn);

/// The signs of a layer, each in a column of its own.
void PutLayer(std::vector<Lead>& leads, const Layer& layer);

}  // namespace tarvik::kneeboard
