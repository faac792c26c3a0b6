#pragma once

namespace store {

/// Makes the forms of the handheld terminal's path known by name. Called once at start.
void RegisterHandheldForms();

}  // namespace store
