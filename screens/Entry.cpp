#include "screens/Entry.h"

#include "platform/forms/Message_Box.h"

bool Entry::May_Be_Lost() const {
  return Is_Kept(question_.unasked) || read_() == stored_ || Is_Left();
}

bool Entry::Is_Left() const {
  return Forms::Ask_Yes_No(Hint_Text(question_.text), question_.title, Forms::Answer::No);
}
