// Which control of a form has which letter. A letter that was given for a caption stays given, so
// that none moves when controls are shown, hidden or captioned anew.
#include <QMenuBar>
#include <algorithm>

#include "platform/forms/Command_Button.h"
#include "platform/forms/Focus.h"
#include "platform/forms/Form.h"
#include "platform/forms/Form_Data.h"
#include "platform/forms/Menu.h"
#include "platform/forms/Mnemonics.h"

namespace Forms {

namespace {

/// A control and one of the captions it has, now or in another mode.
struct Bearer {
  Placed_Control* control;
  std::string caption;
  bool is_button;
  bool is_of_another_mode;
};

// Whether they are seen or not: what is shown later is to find its letter free. Buttons first.
std::vector<Bearer> Bearers_Of(const Form_Data& form) {
  std::vector<Bearer> bearers;
  for (const auto& widget : form.reading_order) {
    Placed_Control* control = Focus_Watch::The().Control_Of(widget);
    if (control == nullptr || !control->Has_Mnemonic()) continue;
    const auto* button = dynamic_cast<const Command_Button*>(control);
    bearers.push_back({control, control->Caption(), button != nullptr, false});
    if (button == nullptr) continue;
    for (const std::string& caption : button->Other_Captions()) {
      bearers.push_back({control, caption, true, true});
    }
  }
  std::ranges::stable_partition(bearers, &Bearer::is_button);
  return bearers;
}

class Giving {
 public:
  explicit Giving(Form_Data& form) : form_(form), bearers_(Bearers_Of(form)) {
    for (const QAction* action : form.window->menuBar()->actions()) {
      letters_.Take(Letter_Of(action->text()));
    }
    for (const auto& [whose, letter] : form.letters) letters_.Take(letter);
  }

  // What a button can get only behind its caption is not to cost another one its own letter.
  void Give() {
    for (const bool to_buttons : {true, false}) {
      for (const bool behind : {false, true}) {
        for (const Bearer& bearer : bearers_) {
          if (bearer.is_button == to_buttons && !Has(bearer)) Give(bearer, behind);
        }
      }
    }
  }

  void Show() const {
    for (const Bearer& bearer : bearers_) {
      if (bearer.is_of_another_mode) continue;
      const auto given = form_.letters.find({bearer.control, bearer.caption});
      const QChar letter = given == form_.letters.end() ? QChar() : given->second;
      bearer.control->Show_Mnemonic(With_Letter(bearer.caption, letter).toStdString());
    }
  }

 private:
  bool Has(const Bearer& bearer) const {
    return bearer.caption.empty() || form_.letters.contains({bearer.control, bearer.caption});
  }

  void Give(const Bearer& bearer, bool behind) {
    const QChar letter = behind ? Letter_Behind(bearer) : Letter_In(bearer);
    if (letter.isNull()) return;
    if (!bearer.is_button) {
      std::erase_if(form_.letters,
                    [&](const auto& entry) { return entry.first.first == bearer.control; });
    }
    form_.letters[{bearer.control, bearer.caption}] = letter;
  }

  // A caption that changed keeps its letter if it can.
  QChar Letter_In(const Bearer& bearer) {
    const QChar own = Own_Letter(bearer);
    if (!own.isNull() && Contains(bearer.caption, own)) return own;
    return letters_.Of(bearer.caption);
  }

  // Fields have labels that say where they are: they do without.
  QChar Letter_Behind(const Bearer& bearer) {
    if (Has_Letters_To_Type(bearer.caption) && !bearer.is_button) return {};
    if (const QChar own = Own_Letter(bearer); !own.isNull()) return own;
    // The captions still to come have words, too, and of these letters few.
    if (Has_Letters_To_Type(bearer.caption)) return letters_.Of("XQJZKV");
    return letters_.Behind(bearer.control->Name(), form_.former_letters[bearer.control]);
  }

  QChar Own_Letter(const Bearer& bearer) const {
    const auto own = std::ranges::find_if(
        form_.letters, [&](const auto& entry) { return entry.first.first == bearer.control; });
    return bearer.is_of_another_mode || own == form_.letters.end() ? QChar() : own->second;
  }

  Form_Data& form_;
  std::vector<Bearer> bearers_;
  Letters letters_;
};

}  // namespace

void Assign_Mnemonics(Form& form) {
  Giving giving(form.Data());
  giving.Give();
  giving.Show();
}

void Forget_Mnemonics(Form& form) {
  Form_Data& data = form.Data();
  for (const auto& [whose, letter] : data.letters) data.former_letters[whose.first] = letter;
  data.letters.clear();
  std::vector<Menu_Item*> items;
  for (Control* control : data.controls) {
    if (auto* item = dynamic_cast<Menu_Item*>(control)) items.push_back(item);
  }
  for (Menu_Item* item : items) item->Forget_Mnemonic();
  for (Menu_Item* item : items) item->Show_Caption();
}

}  // namespace Forms
