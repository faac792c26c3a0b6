#pragma once

#include <string>
#include <vector>

#include "tests/soak/findings.h"

namespace store {

/// Whether the nodes of a cluster hold the same rows in every table. To be asked when nobody works.
void CheckNodesAgree(const std::vector<int>& ports, Findings& findings);

/// How many transactions the nodes have undone since they were last started, because those of
/// another node stood against them, in words.
std::string UndoneByCluster(const std::vector<int>& ports);

}  // namespace store
