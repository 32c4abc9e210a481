// SPDX-License-Identifier: MIT
#include "bench/RatioReporter.h"

#include <cstdio>

namespace velmora::bench {

namespace {
const std::string EngineEnd = "/engine";
const std::string BareEnd = "/bare";
}  // namespace

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (!run.error_occurred) m_times[run.run_name.function_name] = run.GetAdjustedRealTime();
  }
  ConsoleReporter::ReportRuns(runs);
}

void RatioReporter::Finalize() {
  ConsoleReporter::Finalize();
  std::printf("\nengine / bare SQLite\n");
  for (const auto& [name, time] : m_times) {
    if (!name.ends_with(EngineEnd)) continue;
    const std::string work = name.substr(0, name.size() - EngineEnd.size());
    const auto bare = m_times.find(work + BareEnd);
    if (bare != m_times.end()) std::printf("  %-24s %6.2f\n", work.c_str(), time / bare->second);
  }
}

}  // namespace velmora::bench
