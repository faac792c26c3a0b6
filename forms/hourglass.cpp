#include "forms/hourglass.h"

#include "forms/host.h"

namespace store {
namespace {

int steps = 0;  // that are running, one within the other

}  // namespace

Hourglass::Hourglass() {
  if (steps++ == 0) Host.SetPointer(PointerHourglass);
}

Hourglass::~Hourglass() {
  if (--steps == 0) Host.SetPointer(PointerNormal);
}

}  // namespace store
