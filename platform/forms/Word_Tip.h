// The small label at a list or combo box that shows the word being typed there and what it found.
// For the sources of this room only.
#pragma once

class QString;
class QWidget;

namespace Forms::Word_Tip {

/// The name of the label's widget.
constexpr const char* name = "Typed_Word";

/// Shows the text at `list`, in its window. There is one label: it leaves any other list.
void Show(QWidget& list, const QString& text);
/// A further line, if the label is there and the line is not "".
void Add(QWidget& list, const QString& line);
/// Takes the label away if it is shown at `list`.
void Hide(const QWidget& list);

}  // namespace Forms::Word_Tip
