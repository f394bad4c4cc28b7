// How a click on a header sorts a list.
#pragma once

#include <initializer_list>
#include <string_view>

#include "platform/forms/List_View.h"

/// Turns the order of the list and sorts it by the column whose word is the header's text: the
/// first word stands for the list's first column. A header that reads otherwise keeps the column.
void Sort_by_Header(Forms::List_View& list, const Forms::Column_Header& header,
                    std::initializer_list<std::string_view> words);
