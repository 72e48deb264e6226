// The pages of a kneeboard: where everything stands on them. Nothing is cut off or stands over something
// else, however long the words are.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "kneeboard/Options.h"
#include "kneeboard/Sheet.h"
#include "kneeboard/Typesetter.h"

namespace tarvik::kneeboard {

/// The line from the edge of a drawing to a control, as it does not cross another one. It begins level.
struct DrawnLeader {
  std::string label;  ///< the id in the drawing: "HAT-0"
  std::vector<Spot> corners;
};

/// What there is to know of a drawing. All numbers are in its own units.
struct DrawingPlan {
  Area whole;  ///< what is drawn, without boxes and leaders
  std::vector<DrawnLeader> leaders;
};

/// The leaders of a drawing, from what stands in its file.
[[nodiscard]] std::vector<DrawnLeader> LeadersIn(std::string_view svg);

class DrawingPlans {
 public:
  DrawingPlans() = default;
  DrawingPlans(const DrawingPlans&) = delete;
  DrawingPlans& operator=(const DrawingPlans&) = delete;
  virtual ~DrawingPlans() = default;

  /// By the name of its file, without its ending. Null where there is no such drawing.
  [[nodiscard]] virtual const DrawingPlan* Find(const std::string& drawing) const = 0;
};

/// How large the paper is, as it is turned.
[[nodiscard]] Spot SizeOf(const Options& options);
/// How far from the edge of a page of that size everything stays.
[[nodiscard]] double MarginOf(Spot size);

/// The sheets of the wanted kinds in their order, at least one: a kneeboard of nothing has a page that says
/// so.
[[nodiscard]] std::vector<Sheet> SheetsOf(const Contents& contents, const Options& options,
                                          const TextMeasure& measure, const DrawingPlans& plans);

}  // namespace tarvik::kneeboard
