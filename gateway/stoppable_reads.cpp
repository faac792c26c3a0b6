#include "gateway/stoppable_reads.h"

namespace store {
namespace {

int scopes = 0;  // one within another; the outermost counts
bool stopped = false;

}  // namespace

StoppableReads::StoppableReads() { ++scopes; }

StoppableReads::~StoppableReads() {
  if (--scopes == 0) stopped = false;
}

bool StoppableReads::Allowed() { return scopes > 0; }

bool StoppableReads::Stopped() { return stopped; }

void StoppableReads::NoteStopped() { stopped = true; }

}  // namespace store
