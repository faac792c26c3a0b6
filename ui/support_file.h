#pragma once

#include <string>
#include <vector>

#include "ui/support_archive.h"

namespace store {

/// What those who help from afar need to see of this workstation: versions, platform, options,
/// settings and log. Of a person it holds codes only, and no password.
std::vector<ArchivedFile> SupportFiles();

/// Packs them into "store-client-support-YYYYMMDD-HHMMSS.zip" in the user's documents and tells
/// where that is, or why it could not be done.
void SaveSupportFile();

/// The menu's word for it.
inline constexpr const char* kSaveSupportText = "지원용 정보 저장";

}  // namespace store
