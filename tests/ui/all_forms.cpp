#include "tests/ui/all_forms.h"

#include "board/frmDeleted.h"
#include "board/frmDrafts.h"
#include "board/frm_Start.h"
#include "handheld/DT9RECEV.h"
#include "handheld/FRM_CRDIMP.h"
#include "handheld/FRM_DT900_01.h"
#include "handheld/FRM_NAMECHK.h"
#include "handheld/frmProperties.h"
#include "lookup/HELP_BPR.h"
#include "lookup/NEW_PR.h"
#include "lookup/frmPrint.h"
#include "lookup/party_lookups.h"
#include "order/frm_Order.h"
#include "order/frm_Order01.h"
#include "order/frm_Order02.h"
#include "order/frm_Order03.h"
#include "order/frm_OrderPLU.h"
#include "receipt/frm_PE_UNIT.h"
#include "start/frmLogin.h"
#include "start/frmOptions.h"
#include "start/frmSplash.h"

namespace store {
namespace {

template <class... Forms>
std::vector<std::unique_ptr<Form>> Made() {
  std::vector<std::unique_ptr<Form>> forms;
  (forms.push_back(std::make_unique<Forms>()), ...);
  return forms;
}

}  // namespace

std::vector<std::unique_ptr<Form>> AllForms() {
  return Made<frmLogin, frmSplash, frmOptions, frm_Start, frmDrafts, frmDeleted, frm_Order,
              frm_Order01, frm_Order02, frm_Order03, frm_OrderPLU, frm_PE_UNIT, FRM_CRDIMP,
              FRM_DT900_01, DT9RECEV, frmProperties, FRM_NAMECHK, HELP_CT, HELP_RCT, HELP_HCT,
              HELP_ST, HELP_CTM, HELP_BPR, frmPrint, NEW_PR>();
}

}  // namespace store
