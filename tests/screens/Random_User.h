// A user who does at random what the windows in sight allow: by mouse and keys, on controls that
// can be seen, and with texts that nobody would type by intent.
#pragma once

#include <functional>
#include <random>
#include <set>

#include "tests/support/Drive.h"

class QWidget;

class Random_User {
 public:
  /// `countries`, as they show, are chosen as often as all the others together.
  Random_User(unsigned seed, std::set<std::string> countries)
      : random_(seed), countries_(std::move(countries)) {}

  /// The form that takes the next action: the active one, or the main window.
  static std::string Front();
  /// To any that is in sight.
  void Switch_Window();
  /// One action in the form in front. `refused`: a box has just said that the field with the focus
  /// cannot hold what was typed.
  void Act(bool refused);

  /// Called before each action, with the name of what is used, or the key.
  std::function<void(const std::string& what)> about_to;

  int Random(std::size_t count) { return static_cast<int>(random_() % count); }
  template <class List>
  auto One_of(const List& list) {
    return list[static_cast<std::size_t>(Random(list.size()))];
  }

 private:
  void Choose_Entry();
  bool Fill_Required(const std::string& form);
  bool Commit(const std::string& form);
  void Use(QWidget& control);
  int One_of_Rows(const Texts& names);
  void Choose_By_Keys(const std::string& name);
  void Use_List(const std::string& name, int rows);
  void Fill(const std::string& control);

  std::mt19937 random_;
  std::set<std::string> countries_;
  int typed_ = 0;
};
