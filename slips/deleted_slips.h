#pragma once

#include <string>
#include <vector>

#include "slips/deleted_slip.h"

namespace store {

/// Orders that were deleted on the board today, kept on the workstation so that they can be taken
/// back: one file a user and store in the folder "deleted" of `DataFolder`, opened at the first use
/// after the login. What a call has written is on the disk when it returns. On the next day they
/// are removed. Without a file nothing is kept, and `DeletedSlipsWork` says so.

/// Keeps an order that is about to be deleted and gives its number; 0 when it could not be kept.
int KeepDeleted(DeletedSlip slip);
/// The database has said that it is deleted.
void SureOfDeleted(int number);
/// It was not deleted after all, or has been taken back.
void ForgetDeleted(int number);

/// How many there are of today.
int CountDeletedToday();
/// Those of today, the one deleted last first.
std::vector<DeletedSlip> DeletedToday();
/// Whether deleted orders are being kept. False before a login, and when the file takes nothing.
bool DeletedSlipsWork();
/// What the person has to be told about the file, once; mostly nothing.
std::string TakeDeletedNotice();

/// Closes the file, as at the end of a run.
void ResetDeletedSlips();

}  // namespace store
