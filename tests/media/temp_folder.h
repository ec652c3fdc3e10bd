// A scratch folder of the test's own, removed at the end: named by the
// process and the running test, so tests run side by side never share one.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

namespace lf {

inline std::filesystem::path ScratchFolder(const std::string& kind) {
  const auto* test = testing::UnitTest::GetInstance()->current_test_info();
  std::filesystem::path p = std::filesystem::temp_directory_path() /
                            ("lanefarer_" + kind + "_" + std::to_string(getpid()) + "_" +
                             (test ? std::string(test->name()) : std::string("none")));
  std::filesystem::remove_all(p);
  std::filesystem::create_directories(p);
  return p;
}

}  // namespace lf
