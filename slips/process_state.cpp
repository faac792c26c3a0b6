#include "slips/process_state.h"

#include "forms/open_forms.h"
#include "gateway/gateway.h"
#include "session/run_state.h"
#include "slips/slip_keys.h"

namespace store {

void ResetProcessState() {
  DropAllForms();
  ResetGateway();
  ResetSession();
  SlipSeqCounter = 0;
  SlipKeyPrefix.clear();
}

}  // namespace store
