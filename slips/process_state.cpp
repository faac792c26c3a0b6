#include "slips/process_state.h"

#include "basics/formats.h"
#include "basics/records.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"
#include "slips/deleted_slips.h"
#include "slips/drafts.h"
#include "slips/order_in_hand.h"
#include "slips/picks.h"
#include "slips/slip_keys.h"
#include "slips/stored_once.h"

namespace store {

void ResetProcessState() {
  DropAllForms();
  ResetDrafts();
  ResetDeletedSlips();
  ResetGateway();
  ResetRecords();
  ResetFormats();
  Host.Ending = false;
  ResetSlipKeys();
  ResetOrdersInHand();
  PickList.Clear();
  ResetWork();
}

}  // namespace store
