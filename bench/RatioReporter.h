// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

namespace velmora::bench {

/// Prints each benchmark, and at the end how the engine compares: benchmarks come in pairs "Work/engine" and
/// "Work/bare". Only the ratios say something beyond the machine they were measured on.
class RatioReporter final : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

 private:
  std::map<std::string, double> m_times;
};

}  // namespace velmora::bench
