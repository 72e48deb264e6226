// A press without a toolkit: letters of one width, no drawings, and a record of what was wanted of it.
#pragma once

#include <vector>

#include "kneeboard/Press.h"
#include "support/HandMade.h"

namespace tarvik::session {

class NoPlans : public kneeboard::DrawingPlans {
 public:
  [[nodiscard]] const kneeboard::DrawingPlan* Find(const std::string& /*drawing*/) const override {
    return nullptr;
  }
};

class ScriptedPress : public kneeboard::Press {
 public:
  [[nodiscard]] const kneeboard::TextMeasure& Measure() const override { return measure_; }
  [[nodiscard]] const kneeboard::DrawingPlans& Plans() const override { return plans_; }
  Outcome<> Write(const kneeboard::Job& job, const std::string& hostPath) override {
    return Take(job, "write " + hostPath);
  }
  Outcome<> Print(const kneeboard::Job& job) override { return Take(job, "print"); }
  void Copy(const kneeboard::Job& job, std::size_t sheet) override {
    static_cast<void>(Take(job, "copy " + std::to_string(sheet + 1)));
  }

  std::vector<std::string> wanted;  ///< "print" and the like, in order
  std::vector<kneeboard::Job> jobs;
  int failure = 0;  ///< of all that is wanted from now on

 private:
  Outcome<> Take(const kneeboard::Job& job, std::string what) {
    wanted.push_back(std::move(what));
    jobs.push_back(job);
    if (failure != 0) return Failure{failure, "Scripted failure", 0};
    return Done{};
  }

  kneeboard::EvenMeasure measure_;
  NoPlans plans_;
};

}  // namespace tarvik::session
