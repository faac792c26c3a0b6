#pragma once

namespace store {

/// Puts every process-wide record back to the start of a run: session, options, settings, formats,
/// the gateway's slots and texts, the slip sequence, what was picked, and all forms.
void ResetProcessState();

}  // namespace store
