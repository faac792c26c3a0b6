#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "slips/draft.h"

namespace store {

/// What is written into orders and receipts and not saved yet, kept on the workstation against a
/// crash: one file a user and store in the folder "drafts" of `DataFolder`, opened at the first use
/// after the login. A thread of its own writes, so nobody waits for the disk. Without a file
/// nothing here does anything, and `DraftsWork` says so. Called from the thread of the forms.

/// A name for a draft that is to be kept.
std::string NewDraftId();
/// Keeps a draft, as this run's, in place of what was kept under its id.
void KeepDraft(Draft draft);
/// This run writes it no more; it can be brought back.
void PutDraftAside(const std::string& id);
void RemoveDraft(const std::string& id);
/// Waits until everything is on the disk. False when that takes longer than somebody can wait.
bool FlushDrafts(std::chrono::milliseconds patience);

/// The drafts that can be brought back, the newest first: put aside, or left by a run that is gone.
/// Those of the last month; a slip that is older could not be saved any more. Does not wait for the
/// disk.
std::vector<Draft> KeptDrafts();
/// Makes a kept draft this run's. False when another run was quicker.
bool TakeDraft(const std::string& id);

/// Whether drafts are being kept. False before a login, and when the file takes nothing.
bool DraftsWork();
/// What the person has to be told about the file, once; mostly nothing.
std::string TakeDraftNotice();

/// Writes what is left and closes the file, as at the end of a run.
void ResetDrafts();

}  // namespace store
