// What nearly every test includes; compiled once.
#pragma once
#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>
