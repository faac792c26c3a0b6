#pragma once

namespace store {

/// Makes the order forms known by name ("frm_Order").
void RegisterOrderForms();

}  // namespace store
