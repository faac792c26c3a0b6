#pragma once

#include <filesystem>
#include <string>

struct sqlite3;

namespace store {

/// Opens the file of drafts, which is made for its owner's eyes alone, with its folder and its
/// tables. One that is damaged or of a newer program is set aside under another name, and `notice`
/// tells the person so. What is written there is on the disk when the write returns. Nothing when
/// there can be no file in that place.
sqlite3* OpenDraftFile(const std::filesystem::path& path, std::string& notice);

/// The same file once more, for another thread, to read and to take: that waits neither for a write
/// nor for the disk. A power cut may undo a taking, which loses nothing.
sqlite3* OpenBeside(sqlite3* file);

}  // namespace store
