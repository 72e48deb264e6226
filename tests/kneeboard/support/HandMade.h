// Kneeboards made by hand, for what is laid out of them.
#pragma once

#include <map>

#include "kneeboard/Layout.h"

namespace tarvik::kneeboard {

/// Letters of one width, those that are bold a little wider.
class EvenMeasure : public TextMeasure {
 public:
  [[nodiscard]] double Width(std::string_view text, bool bold) const override;
};

/// The leaders of the real drawings.
class RealPlans : public DrawingPlans {
 public:
  RealPlans();
  [[nodiscard]] const DrawingPlan* Find(const std::string& drawing) const override;

 private:
  std::map<std::string, DrawingPlan> plans_;
};

/// The sheets of a kneeboard with the real drawings and even letters.
[[nodiscard]] std::vector<Sheet> Laid(const Contents& contents, const Options& options = {});

/// A name of so many letters, in one word or, by the number, in several.
[[nodiscard]] std::string NameOfLength(std::size_t letters);

enum class Amount { Sparse, Full, Crowded };

/// A stick and a throttle, all of whose words have that length.
[[nodiscard]] Contents MadeOf(Amount amount, std::size_t letters);

}  // namespace tarvik::kneeboard
