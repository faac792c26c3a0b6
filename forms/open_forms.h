#pragma once

#include <functional>
#include <memory>
#include <string>

#include "forms/form.h"

namespace store {

/// Forms open one another by name, so that no form includes another's insides. Each name has one
/// instance at a time, made on first use.

/// Says how a form of this name is made. Called once a name by the folder that owns the form.
void RegisterForm(const std::string& name, std::function<std::unique_ptr<Form>()> maker);

/// The instance of that name, made if there is none. Nothing for a name nobody registered.
Form* TheForm(const std::string& name);

/// The instance of that name if it has been made and not been closed, otherwise nothing.
Form* OpenForm(const std::string& name);

/// Ends the process-wide reference to a closed form, so that the next use of its name starts
/// afresh. The object itself lives on until `ReleaseDroppedForms`, as its own event is running.
void DropForm(const Form& form);

/// Frees the forms that were closed. Called when no event of a form is running.
void ReleaseDroppedForms();

/// Drops every instance, closed or not. For the end of a run.
void DropAllForms();

}  // namespace store
