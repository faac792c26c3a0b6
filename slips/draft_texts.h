#pragma once

#include <string>
#include <vector>

#include "slips/draft.h"

namespace store {

/// What a person is told when a draft is brought back. All under the title "쓰던 전표".

/// The order behind the draft is not as it was when it was loaded.
void TellSlipChanged(const Draft& draft);
/// It was when the draft was looked up, and a moment later it stood otherwise (`stand`) or could
/// not be read: the form shows it as it is, and the draft is kept.
void TellNotGoneOnWith(const std::string& stand);
/// What the draft holds stands in the database already.
void TellAlreadyStored(const Draft& draft);
/// The database could not be asked.
void TellDraftUnreadable();
/// Another run of the program has it.
void TellDraftTaken();
/// Lines that could not be written again, and the depot that the list does not have; says nothing
/// when there is neither.
void TellNotBroughtBack(const std::vector<DraftLine>& refused, const std::string& depot);
/// Asks before drafts are thrown away.
bool MayThrowAway(const Draft& draft);

/// What the draft is for the person: "발주", "발주 수정" or "입고".
std::string KindOf(const Draft& draft);

}  // namespace store
