#pragma once

#include "ui/shots/director.h"

namespace store {

/// The processing of what a terminal has sent: purchases, and a survey beside the stock on file.
void ShootBatch(Director& director);

}  // namespace store
