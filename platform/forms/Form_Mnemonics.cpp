// Which control of a form has which letter. A letter that was given for a caption stays given, so
// that none moves when controls are shown, hidden or captioned anew.
#include <QMenuBar>
#include <algorithm>
#include <set>

#include "platform/forms/Check_Box.h"
#include "platform/forms/Command_Button.h"
#include "platform/forms/Focus.h"
#include "platform/forms/Form.h"
#include "platform/forms/Form_Data.h"
#include "platform/forms/Matching.h"
#include "platform/forms/Menu.h"
#include "platform/forms/Mnemonics.h"
#include "platform/forms/Qt_Text.h"

namespace Forms {

namespace {

// What letters cost their bearers. A digit is left for where all letters are given.
constexpr int begins_a_word = 1;
constexpr int within_a_word = 4;
constexpr int letter_behind = 12;
constexpr int digit_behind = 15;
constexpr int no_letter = 500;
constexpr int not_allowed = no_letter + 1;

/// A control and captions of it, now or in other modes, that can have one letter.
struct Bearer {
  Placed_Control* control;
  std::vector<std::string> captions;
  bool is_button = dynamic_cast<const Command_Button*>(control) != nullptr;
};

// Where the letter is looked for: a caption without letters has one of the control's name.
std::string_view Letters_For(const Control& control, std::string_view caption) {
  return Has_Letters_To_Type(caption) ? caption : control.Name();
}

bool Has_In_Each(const Bearer& bearer, QChar letter) {
  return std::ranges::all_of(bearer.captions, [&](const std::string& caption) {
    return Contains(Letters_For(*bearer.control, caption), letter);
  });
}

// Boxes to tick have the least to say: there are many, side by side. Between equals the earlier one
// is preferred, by less than this difference.
int Weight_Of(const Bearer& bearer) {
  if (bearer.is_button) return 30'000;
  return dynamic_cast<const Check_Box*>(bearer.control) != nullptr ? 300 : 9'000;
}

class Giving {
 public:
  // Whether they are seen or not: what is shown later is to find its letter free.
  explicit Giving(Form_Data& form) : form_(form) {
    for (const QAction* action : form.window->menuBar()->actions()) {
      owners_[Letter_Of(action->text())] = nullptr;
    }
    for (const auto& [whose, letter] : form.letters) owners_[letter] = whose.first;
    for (const auto& widget : form.reading_order) {
      Placed_Control* control = Focus_Watch::The().Control_Of(widget);
      if (control != nullptr && control->Has_Mnemonic()) Enter(*control);
    }
  }

  void Give() {
    const std::vector<QChar> letters(alphabet_.begin(), alphabet_.end());
    std::vector<std::vector<int>> prices;
    for (const Bearer& bearer : bearers_) {
      const int weight = Weight_Of(bearer) - static_cast<int>(prices.size());
      std::vector<int>& row = prices.emplace_back();
      for (const QChar letter : letters) row.push_back(Price(bearer, letter) * weight);
      row.resize(letters.size() + bearers_.size(), no_letter * weight);
    }
    const std::vector<std::size_t> given = Cheapest_Matching(prices);
    for (std::size_t i = 0; i < given.size(); ++i) {
      if (given[i] < letters.size()) Give(bearers_[i], letters[given[i]]);
    }
  }

  void Show() const {
    for (Placed_Control* control : controls_) {
      const auto given = form_.letters.find({control, control->Caption()});
      const QChar letter = given == form_.letters.end() ? QChar() : given->second;
      control->Show_Mnemonic(With_Letter(control->Caption(), letter).toStdString());
    }
  }

 private:
  void Enter(Placed_Control& control) {
    controls_.push_back(&control);
    Enter(control, control.Caption());
    const auto* button = dynamic_cast<const Command_Button*>(&control);
    if (button == nullptr) return;
    for (const std::string& caption : button->Other_Captions()) Enter(control, caption);
  }

  // A control keeps its letter from mode to mode where captions in sequence have one in common.
  void Enter(Placed_Control& control, const std::string& caption) {
    if (caption.empty() || form_.letters.contains({&control, caption})) return;
    for (const QChar letter : "ABCDEFGHIJKLMNOPQRSTUVWXYZ123456789" + To_Qt(caption).toUpper()) {
      if (Can_Be_Typed(letter)) alphabet_.insert(letter);
    }
    if (!bearers_.empty() && bearers_.back().control == &control) {
      Bearer with_this = bearers_.back();
      with_this.captions.push_back(caption);
      const auto fits = [&](QChar letter) { return Has_In_Each(with_this, letter); };
      if (std::ranges::any_of(alphabet_, fits)) return std::swap(bearers_.back(), with_this);
    }
    bearers_.push_back({&control, {caption}});
  }

  // A caption that changed keeps its letter if it can. Fields have labels that say where they are:
  // none gets a letter behind a caption that has others.
  int Price(const Bearer& bearer, QChar letter) const {
    const auto owner = owners_.find(letter);
    if (owner != owners_.end() && owner->second != bearer.control) return not_allowed;
    const std::string& caption = bearer.captions.front();
    const bool has_letters = Has_Letters_To_Type(caption);
    const bool is_in = Has_In_Each(bearer, letter);
    if (!is_in && has_letters && !bearer.is_button) return not_allowed;
    const bool own = owner != owners_.end() || (!has_letters && Had(*bearer.control, letter));
    if (own && (is_in || !has_letters)) return 0;
    if (!is_in) return letter.isDigit() ? digit_behind : letter_behind;
    const QString text = To_Qt(Letters_For(*bearer.control, caption));
    if (text.startsWith(letter, Qt::CaseInsensitive)) return 0;
    return Begins_Word_In(text, letter) ? begins_a_word : within_a_word;
  }

  bool Had(const Control& control, QChar letter) const {
    const auto former = form_.former_letters.find(&control);
    return former != form_.former_letters.end() && former->second == letter;
  }

  void Give(const Bearer& bearer, QChar letter) {
    if (!bearer.is_button) {
      std::erase_if(form_.letters,
                    [&](const auto& entry) { return entry.first.first == bearer.control; });
    }
    for (const std::string& caption : bearer.captions) {
      form_.letters[{bearer.control, caption}] = letter;
    }
  }

  Form_Data& form_;
  std::set<QChar> alphabet_;
  std::map<QChar, const Control*> owners_;  ///< nullptr: the menu bar
  std::vector<Placed_Control*> controls_;
  std::vector<Bearer> bearers_;  ///< those without a letter
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
