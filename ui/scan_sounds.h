#pragma once

#include <QString>

namespace store {

/// Two short tones, high for what was taken and falling for what was not, so that who scans need
/// not look up. Nothing sounds while the user has sounds switched off. Where the workstation cannot
/// play, the second is the window system's bell and the first is silent.
void SoundTaken();
void SoundRefused();

QString SoundLibraryVersion();

}  // namespace store
