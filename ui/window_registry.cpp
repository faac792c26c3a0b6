#include "ui/window_registry.h"

#include <map>

namespace store {
namespace {

std::map<std::string, WindowMaker>& Makers() {
  static std::map<std::string, WindowMaker> makers;
  return makers;
}

}  // namespace

void RegisterWindow(const std::string& formName, WindowMaker maker) {
  Makers()[formName] = std::move(maker);
}

FormWindow* MakeWindow(Form& form) {
  const auto found = Makers().find(form.Name);
  return found == Makers().end() ? nullptr : found->second(form);
}

}  // namespace store
