#include "gateway/data_space.h"

#include "gateway/direct_tier.h"

namespace store {

std::shared_ptr<DataTier> DataSpaceObject::CreateObject(const std::string& progId,
                                                        const std::string& address) {
  // With a host in the address a service would have to answer there; none is built into this
  // client, so it cannot be reached.
  if (address != "http://" || progId != "TWMGR.DEMON") return nullptr;
  if (!direct_) direct_ = std::make_shared<DirectTier>();
  return direct_;
}

}  // namespace store
