#pragma once

#include <string>

#include "gateway/gateway.h"

namespace store {

/// Goes to the first row of the whole read that meets the criteria. False when there is none, when
/// the read has failed, or when a quote in a value leaves no criteria that can be read.
bool GoToFirst(const RecordsetSlot& rows, const std::string& criteria);

}  // namespace store
