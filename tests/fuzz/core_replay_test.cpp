// SPDX-License-Identifier: MIT
#include "fuzz/core_targets.h"
#include "fuzz/replay.h"

namespace tarnwick::testing {
namespace {

INSTANTIATE_TEST_SUITE_P(Core, FuzzReplay, ::testing::ValuesIn(coreFuzzTargets()),
                         [](const auto& target) { return std::string(target.param.name); });

}  // namespace
}  // namespace tarnwick::testing
