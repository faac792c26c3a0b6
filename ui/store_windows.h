#pragma once

namespace store {

/// Makes the windows of all forms known.
void RegisterStoreWindows();

}  // namespace store
