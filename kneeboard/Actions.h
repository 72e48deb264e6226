// What a control does: the ways through the slash modifiers of its statements, layer by layer.
#pragma once

#include "kneeboard/Deeds.h"

namespace tarvik::kneeboard {

/// The actions of all statements for a control, in their order. What is the same in all layers is told once.
[[nodiscard]] std::vector<Action> ActionsOf(const DeedWriter& writer, const model::ControlNames& control);
/// Of a flag, by its BTN.
[[nodiscard]] std::vector<Action> ActionsOf(const DeedWriter& writer,
                                            const std::vector<model::Mention>& buttons);

/// Puts actions together that differ in nothing but a layer, and stand for all of its states.
void Merge(std::vector<Action>& actions);

}  // namespace tarvik::kneeboard
