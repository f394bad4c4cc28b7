#include "platform/forms/Screens.h"

#include <QWindow>
#include <map>
#include <vector>

#include "platform/forms/Focus.h"
#include "platform/forms/Form_Data.h"
#include "platform/forms/Screens_Inside.h"
#include "platform/forms/Soon.h"
#include "platform/forms/Window_Memory.h"
#include "platform/run_time/Guard.h"

namespace Forms {

namespace {

struct Entry {
  Screens::Factory factory;
  std::unique_ptr<Form> form;
  std::string waiting_tag;  ///< set while the screen was not loaded
};

struct Registry {
  std::map<std::string, Entry, std::less<>> entries;
  std::string main;
  std::vector<std::unique_ptr<Form>> buried;
};

Registry& The_Registry() {
  static Registry registry;
  return registry;
}

Entry* Find(std::string_view name) {
  const auto found = The_Registry().entries.find(name);
  const bool known = found != The_Registry().entries.end() && found->second.factory;
  return known ? &found->second : nullptr;
}

Form* Loaded(std::string_view name) {
  const Entry* entry = Find(name);
  return entry == nullptr ? nullptr : entry->form.get();
}

Form& Load_Form(std::string_view name) {
  Entry* entry = Find(name);
  if (entry == nullptr) Fail(Failure::Object_Required);
  if (entry->form == nullptr) {
    entry->form = entry->factory();
    entry->form->Set_Tag(std::exchange(entry->waiting_tag, {}));
    entry->form->Load();
    // A screen may unload itself while it loads.
    if (entry->form == nullptr) return *The_Registry().buried.back();
  }
  return *entry->form;
}

void Empty_Grave() {
  if (!Inside_Handler()) The_Registry().buried.clear();
}

void Empty_Grave_Soon() {
  static Soon soon(Empty_Grave);
  soon.Set_Off();
}

bool Any_Window_Visible() {
  for (const auto& [name, entry] : The_Registry().entries) {
    if (entry.form != nullptr && entry.form->Visible()) return true;
  }
  return false;
}

// Only a dialog is kept above the window that it belongs to.
void Make_Wait(Form& caller, Form& picker) {
  Focus_Watch::The().Forget(caller);
  ++caller.Data().waiting_for;
  picker.Data().caller = &caller;
  picker.Window()->setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                  Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
  picker.Window()->setWindowModality(Qt::WindowModal);
  picker.Window()->winId();
  picker.Window()->windowHandle()->setTransientParent(caller.Window()->windowHandle());
}

std::vector<Form*> Opened_Over(const Form& caller) {
  std::vector<Form*> pickers;
  for (auto& [name, entry] : The_Registry().entries) {
    if (entry.form != nullptr && entry.form->Data().caller == &caller) {
      pickers.push_back(entry.form.get());
    }
  }
  return pickers;
}

}  // namespace

void Pass_Focus_On(const Form& waiting) {
  for (Form* picker : Opened_Over(waiting)) picker->Window()->activateWindow();
}

// What was opened over a form goes with it.
void Bury(Form& form) {
  Registry& registry = The_Registry();
  for (Form* picker : Opened_Over(form)) picker->Unload();
  Entry* entry = Find(form.Name());
  if (entry == nullptr || entry->form.get() != &form) return;
  registry.buried.push_back(std::move(entry->form));
  Empty_Grave_Soon();
}

void Remember_Windows() {
  for (const auto& [name, entry] : The_Registry().entries) {
    if (entry.form != nullptr && entry.form->Visible()) Remember_Window(entry.form->Data());
  }
}

void Settle_Screens() {
  if (!The_Registry().buried.empty()) Empty_Grave_Soon();
  const std::string& main = The_Registry().main;
  if (main.empty() || Any_Window_Visible() || Process_Has_Ended()) return;
  Screen(main).Show();
  Hooks().commit();
}

bool Screen::Exists() const { return Find(name_) != nullptr; }

bool Screen::Is_Loaded() const { return Loaded(name_) != nullptr; }

bool Screen::Visible() const { return Is_Loaded() && Loaded(name_)->Visible(); }

bool Screen::Open() const {
  if (!Exists()) return true;
  Form* form = Loaded(name_);
  const bool stays = form != nullptr && !form->May_Be_Replaced();
  if (!stays) Unload();
  Show();
  return !stays;
}

void Screen::Open_Over(Form& caller) const {
  if (!Exists()) return;
  Unload();
  Form& picker = Load_Form(name_);
  if (!picker.Is_Live()) return;
  Make_Wait(caller, picker);
  picker.Show();
}

void Screen::Show() const {
  if (Exists()) Load_Form(name_).Show();
}

void Screen::Hide() const {
  if (Form* form = Loaded(name_)) form->Hide();
}

void Screen::Unload() const {
  if (Form* form = Loaded(name_)) form->Unload();
}

void Screen::Load() const { Load_Form(name_); }

std::string Screen::Tag() const {
  if (const Form* form = Loaded(name_)) return form->Tag();
  const Entry* entry = Find(name_);
  return entry == nullptr ? std::string() : entry->waiting_tag;
}

void Screen::Set_Tag(std::string_view tag) const {
  if (Form* form = Loaded(name_)) {
    form->Set_Tag(tag);
  } else if (Entry* entry = Find(name_)) {
    entry->waiting_tag = tag;
  }
}

const std::string& Screen::Caption() const { return Instance().Caption(); }

void Screen::Set_Caption(std::string_view caption) const { Instance().Set_Caption(caption); }

Forms::Control& Screen::Control(std::string_view name) const {
  return Instance().Find_Control(name);
}

Form& Screen::Instance() const { return Load_Form(name_); }

void Screen::Fail_As_Other_Kind() { Fail(Failure::Type_Mismatch); }

namespace Screens {

void Register(std::string_view name, Factory factory) {
  The_Registry().entries[std::string(name)].factory = std::move(factory);
}

void Set_Main(std::string_view name) { The_Registry().main = name; }

std::vector<std::string> Names_For_Tests() {
  std::vector<std::string> names;
  for (const auto& [name, entry] : The_Registry().entries) {
    if (entry.factory) names.push_back(name);
  }
  return names;
}

void Clear_For_Tests() {
  Registry& registry = The_Registry();
  registry.buried.clear();
  for (auto& [name, entry] : registry.entries) {
    entry.form.reset();
    entry.waiting_tag.clear();
  }
}

}  // namespace Screens
}  // namespace Forms
