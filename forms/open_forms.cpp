#include "forms/open_forms.h"

#include <algorithm>
#include <map>
#include <vector>

namespace store {
namespace {

std::map<std::string, std::function<std::unique_ptr<Form>()>>& Makers() {
  static std::map<std::string, std::function<std::unique_ptr<Form>()>> makers;
  return makers;
}

std::map<std::string, std::unique_ptr<Form>>& Instances() {
  static std::map<std::string, std::unique_ptr<Form>> instances;
  return instances;
}

std::vector<std::unique_ptr<Form>>& Dropped() {
  static std::vector<std::unique_ptr<Form>> dropped;
  return dropped;
}

}  // namespace

void RegisterForm(const std::string& name, std::function<std::unique_ptr<Form>()> maker) {
  Makers()[name] = std::move(maker);
}

Form* TheForm(const std::string& name) {
  if (Form* open = OpenForm(name)) return open;
  const auto maker = Makers().find(name);
  if (maker == Makers().end()) return nullptr;
  return (Instances()[name] = maker->second()).get();
}

Form* OpenForm(const std::string& name) {
  const auto found = Instances().find(name);
  return found == Instances().end() ? nullptr : found->second.get();
}

void DropForm(const Form& form) {
  const auto found =
      std::find_if(Instances().begin(), Instances().end(),
                   [&](const auto& instance) { return instance.second.get() == &form; });
  if (found == Instances().end()) return;
  Dropped().push_back(std::move(found->second));
  Instances().erase(found);
}

void ReleaseDroppedForms() { Dropped().clear(); }

void DropAllForms() {
  Instances().clear();
  Dropped().clear();
}

}  // namespace store
