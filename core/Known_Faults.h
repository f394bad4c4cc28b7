// The faults that the program is designed with, and that a run can be started without
// (docs/known-failures.md tells what a user sees of each). The code asks at the place where the
// fault lies; both ways read and write one data file, in turns.
#pragma once

/// Named after what goes wrong. First what happens where the fault is kept, then what happens where
/// it is mended.
enum class Fault {
  // ---- a wine is picked to be corrected ----

  /// A label or class that the lists do not hold ("No Label" among them) is failure 380 / it stands
  /// as a last entry, chosen, "No Label" at its own place, and is kept unless another is chosen.
  Gone_Name_Ends_The_Run,
  /// A vintage or a peak outside its list shows and stores another year, a size of bottle none, a
  /// merit another / the list takes it in.
  Unlisted_Year_Is_Lost,
  /// The first entry of the vintages is no choice / it is one as any other.
  Oldest_Vintage_Is_No_Choice,
  /// A grape that the region does not grow is neither shown nor stored again / it stands as a last
  /// entry, ticked.
  Unlisted_Grape_Is_Lost,
  /// A colour stored in another language leaves the colour as it was, and every colour the boxes /
  /// it is known by its place in any language, and the boxes are its own and those ticked.
  Color_Goes_By_Word,
  /// A blank alcohol and an old date of adding, shown and left as they are, are refused / accepted.
  Shown_Value_Is_Refused,
  /// Another pick, another country or winery and EXIT throw away what was entered / they ask first.
  Entered_Wine_Goes_Without_A_Word,

  // ---- what SAVE, MODIFY and REMOVE store ----

  /// A text that is stored already fails with 3020, and a missing one is stored as "x" / it is
  /// changed, and what is not there makes no row.
  Stored_Text_Cannot_Change,
  /// A text that is "x" alone reads as none / it is stored with a blank behind it.
  Lone_X_Is_No_Text,
  /// A wine without grapes, and no mark in the whole table, are 3021 to MODIFY / nothing to remove.
  Nothing_To_Remove_Ends_The_Run,
  /// Old marks stay beside the new ones / they are found by their wine, and go.
  Old_Marks_Stay,
  /// A taste is stored by its clicks / by its box, as an aroma is.
  Tastes_Go_By_Clicks,
  /// A general wine's marks show for the cellar's wine of its number / they do not.
  Marks_Of_General_Wines_Show,
  /// The dates that can be typed are not stored / they are.
  Typed_Dates_Are_Not_Stored,
  /// A wine is stored with the pairings chosen last, on whatever screen, but not with none / with
  /// those that its list shows.
  Pairings_Chosen_Last_Are_Stored,
  /// A MODIFY and a search count the pairings as used once more, each time / only those that a
  /// wine newly has are counted, and those that it lost counted out.
  Pairings_Count_Again,
  /// A wine's rows of cheeses go by the pairing read last, and come again with each MODIFY / by the
  /// pairing itself, once.
  Cheese_Goes_By_Last_Record,
  /// Counters move of the class and grape read last, and stay at MODIFY and REMOVE / of the label,
  /// class and each grape that the wine has, has no longer, or is removed with.
  Wrong_Rows_Are_Counted,
  /// A counter at 32,767 is failure 6 / it stays where it is.
  Full_Counter_Ends_The_Run,
  /// What a removed wine had in other tables stays / it goes with the wine.
  Rows_Of_Removed_Wine_Stay,
  /// A wine's number above 32,767 is failure 6 to this screen and to some tables / it is not.
  Wine_Numbers_Have_16_Bits,
  /// The list of the cellar cannot be used after a SAVE / it can.
  List_Is_Dead_After_Save,
  /// What a row refers to and is no longer there is 3021 / it shows as a blank, counts nothing.
  Gone_Row_Ends_The_Run,

  // ---- pickers and searches ----

  /// A picker takes 101 entries, which PROCEED fails with (9), and refuses the next one in a number
  /// alone; the screen of a region's grapes any number / 100, and they say so.
  Picker_Takes_One_Too_Many,
  /// Two entries of one text cannot be chosen together / an entry is known by its key.
  Same_Text_Is_Chosen_Once,
  /// The chooser of a new wine's pairings begins empty each time / with what the wine has.
  Chooser_Begins_Empty,
  /// A search finds 99 wines, removed ones among them, in the order of the links / every wine that
  /// is in a cellar, in the order of the cellar's list.
  Search_Ends_At_A_Hundred,
  /// UNCORK in the results searches for that wine's pairings / the results stay.
  Uncork_Changes_The_Search,
  /// Two headers of the results turn the order alone / they sort by their columns.
  Two_Headers_Sort_Nothing,
  /// The results do not say which cellar a wine lies in / they do, where two are named.
  Results_Hide_The_Cellar,
  /// A subgroup that no pairing has is 3021 or a pairing of the next group / left out.
  Missing_Subgroup_Ends_The_Run,
  /// A wine with more than 100 pairings is failure 9 / it shows the first 100, and keeps the rest
  /// until its pairings are changed.
  More_Pairings_End_The_Run,

  // ---- the catalogue of pairings, the cellars' names ----

  /// Beside English the catalogue shows Spanish, and stores it as the language in force / it shows
  /// and stores the language in force.
  Catalogue_Shows_Two_Languages,
  /// MODIFY without a pick is 3021 / it is not open before.
  Modify_Without_Pick_Ends_The_Run,
  /// A new pairing reads "x" in five languages / the typed name stands in all.
  New_Pairing_Reads_X,
  /// A new pairing is one of the cheese that was read last / of none.
  New_Pairing_Takes_Last_Cheese,
  /// A cellar named "x" counts as not named / the name is refused.
  Cellar_Can_Be_Named_X,
  /// Naming the cellars anew adds a row each time / it changes those that are there.
  Second_Naming_Adds_A_Row,

  // ---- the catalogues of regions, labels and wineries ----

  /// A label opened from a wine: SAVE is 424; EXIT deletes the region with the highest key, then
  /// 424 / the label is stored and chosen for the wine; EXIT goes back to the wine.
  Label_For_Wine_Ends_The_Run,
  /// Once the name of a label that is renamed was empty, MODIFY stays closed / the next name opens
  /// it.
  Emptied_Name_Leaves_Modify_Closed,
  /// EXIT of a region opened from a winery deletes its own row, then 424 / goes back to the winery.
  Region_For_Winery_Ends_The_Run,
  /// "New Region" of a winery that is modified, or made for a general wine, opens a screen that
  /// stores nothing / a region is added as for a new winery.
  New_Region_Needs_New_Winery,
  /// On the way to a winery a region can be made before the winery has a country, or in another
  /// one:
  /// it is not taken over / the country comes first, and is the region's.
  New_Region_Can_Be_Lost,
  /// SAVE of a winery opened from the general list does nothing / it is stored and handed over.
  Winery_For_General_List_Is_Not_Stored,
  /// PROCEED for a region that shows a grape of a sub-region is 35600 / such grapes are skipped.
  Grape_Of_Sub_Region_Ends_The_Run,
  /// The country beside a classification, and the others of that country, stay as they were when
  /// the screen was opened / they are those of the one on show.
  Country_of_Class_Stays,
  /// A change makes a delivered row the user's / it stays a delivered row.
  Changed_Row_Becomes_The_Users,
  /// A double is looked for under English and in its own case, and not among wineries / in each
  /// language and case, of regions, labels and wineries.
  Double_Name_Goes_By_Case,
  /// A row can be named as one that is not confirmed yet, "x" or "No Label" / such names are
  /// refused.
  Row_Can_Be_Named_X,
  /// A row whose counter is 0 can be deleted, whatever refers to it / it is refused as a used one.
  Deletion_Goes_By_Counter,
  /// The texts, grapes and photos of a deleted row stay / they go with it.
  Rows_Of_Deleted_Row_Stay,
  /// A label's wines name it by its text, and by the old one once it is renamed / they follow it.
  Renamed_Label_Loses_Its_Wines,
  /// A winery keeps the old name of its region / it takes the new one.
  Renamed_Region_Loses_Its_Wineries,
  /// A winery that is moved to another region or country leaves its wines counted in the old one /
  /// they are counted where it is.
  Moved_Winery_Leaves_Counters,
  /// The grapes of a region are counted again with each PROCEED, once by the picker and twice by
  /// the screen, and never less; the picker only adds to the way back / each grape is counted once,
  /// one taken out is counted out, and both tables hold the same.
  Grapes_Of_Region_Count_Again,
  /// The rows of the tables of regions and grapes are numbered up to 32,767, no number twice, and
  /// what would need more is failure 6 / their numbers do not end.
  Link_Numbers_Have_16_Bits,
  /// A row clicked while another one is added takes the place of what was entered / it is only
  /// marked.
  Pick_Replaces_New_Row,
  /// What was entered in a catalogue goes without a word / a question comes first.
  Entered_Row_Goes_Without_A_Word,
  /// A row that was being added when the run was killed stays / it goes at the next start.
  Unconfirmed_Row_Stays,
};

/// Whether the program behaves as designed in this. True for all, or False for all, from the start
/// of a run to its end.
bool Is_Kept(Fault fault);
/// Which of the two, for telling the user.
bool Known_Faults_Are_Mended();

/// Mends them all, or keeps them all: at the start, before the first screen is made. They are kept
/// until this is called.
void Mend_Known_Faults(bool mended = true);
