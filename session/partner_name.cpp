#include "session/partner_name.h"

#include "gateway/gateway.h"

namespace store {
namespace {

std::string PartnerNameStatement(const std::string& code) {
  return Splice(
      " SELECT  CT_NAME "
      " FROM   CT WHERE CT_CODE = '{0}'",
      {code});
}

}  // namespace

std::string PartnerNameOf(const std::string& code) {
  if (code.empty()) return {};
  return QueryText(PartnerNameStatement(code), "");
}

}  // namespace store
