// What the screens of the catalogues say before a row is deleted, and what goes with it.
#pragma once

#include "links/Referred_Rows.h"
#include "screens/Catalogue_Screen.h"

/// The message about a region in use has the title of another screen, as designed.
inline constexpr Catalogue_Screen::Deletion Deletion_of_Region{
    .in_use = "You have in your Cellar one or more wines from this Region.",
    .remove_first =
        "You have to remove those wines from your Cellar before you can delete this Region.",
    .in_use_title = "DELETE WINERY ERROR",
    .question = "Are you sure you want to DELETE this Region?",
    .question_title = "DELETE REGION WARNING",
    .is_referred_to = Is_Region_Referred_To,
    .remove_rows = Remove_Rows_of_Region};

inline constexpr Catalogue_Screen::Deletion Deletion_of_Label{
    .in_use = "You have in your Cellar one or more wines with this Label.",
    .remove_first =
        "You have to remove those wines from your Cellar before you can delete this Label.",
    .in_use_title = "DELETE LABEL ERROR",
    .question = "Are you sure you want to DELETE this Label?",
    .question_title = "DELETE LABEL WARNING",
    .is_referred_to = Is_Label_Referred_To,
    .remove_rows = Remove_Rows_of_Label};

inline constexpr Catalogue_Screen::Deletion Deletion_of_Winery{
    .in_use = "You have in your Cellar one or more wines from this winery.",
    .remove_first =
        "You have to remove those wines from your Cellar before you can delete this winery.",
    .in_use_title = "DELETE WINERY ERROR",
    .question = "Are you sure you want to DELETE this winery?",
    .question_title = "DELETE WINERY WARNING",
    .is_referred_to = Is_Winery_Referred_To,
    .remove_rows = Remove_Rows_of_Winery};

inline constexpr Catalogue_Screen::Deletion Deletion_of_Classification{
    .in_use = "You have in your Cellar one or more wines using this Classification.",
    .remove_first =
        "You have to remove those wines from your Cellar before you can delete this "
        "Classification.",
    .in_use_title = "DELETE CLASSIFICATION ERROR",
    .question = "Are you sure you want to DELETE this Classification?",
    .question_title = "DELETE CLASSIFICATION WARNING",
    .is_referred_to = Is_Classification_Referred_To,
    .remove_rows = nullptr};
