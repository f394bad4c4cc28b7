// Each fault that a line of the data can have, one at a time: it is found, and told with its place.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/tools/Small_Library.h"

namespace {

using Data_Compiler::Problems;

struct Fault {
  const char* file;  ///< without ".tsv"
  const char* from;
  const char* to;
  const char* problem;  ///< stands in the first line of the report
};

const Fault faults[] = {
    {"varieties", "Other_Names", "Synonyms", "varieties.tsv:1: the column 'Other_Names' is"},
    {"varieties", "Pairings", "Pairings\tHue", "varieties.tsv:1: unknown column 'Hue'"},
    {"varieties", "Other_Names", "Pairings", "the column 'Pairings' stands twice"},
    {"varieties", "Malbec\tRed\tx", "Malbec\tRed", "varieties.tsv:4: 3 cells for 4 columns"},
    {"varieties", "Malbec\tRed\tx", "Malbec\tRed\t", "Other_Names is empty"},
    {"varieties", "Malbec\tRed\tx", "Malbec\tRed\tCôt ", "Other_Names holds stray blanks"},
    {"varieties", "Malbec\tRed\tx", "Malbec\tRed\tCot  noir", "holds stray blanks"},
    {"varieties", "Malbec\tRed\tx", "Malbec\tRed\tCot\r", "holds a control character"},
    {"varieties", "Malbec\tRed\tx", "Malbec\tRed\tC\xF4t", "is no valid UTF-8"},
    {"varieties", "Malbec\tRed\tx", "Malbec\tRed\tCo\xCC\x82t", "not in normal form C"},
    {"pairings", "pt Steak\t3", "pt Steak\tmany", "Multiuse 'many' is no number"},
    {"wine_system", "False", "No", "wine_system.tsv:2: Wine_Cellar_as_Option 'No' is neither"},
    {"regions", "Merlot; Malbec", "Merlot; Mlbec", "regions.tsv:3: unknown variety 'Mlbec'"},
    {"regions", "Merlot; Malbec", "Merlot; malbec", "variety 'malbec' is written 'Malbec' in "},
    {"regions", "Merlot; Malbec", "Merlot; Merlot", "Varieties names 'Merlot' twice"},
    {"regions", "Médoc\tBordeaux", "Médoc\tBordo", "unknown region 'Bordo (FRA)'"},
    {"regions", "FRA\tSud", "FRA\tMÉDOC", "'MÉDOC (FRA)' stands already in regions.tsv:3"},
    {"regions", "FRA\tSud", "FRA\tx", "regions.tsv:4: the region has no name"},
    {"region_texts", "Médoc", "Medoc", "region_texts.tsv:2: unknown region 'Medoc (FRA)'"},
    {"labels", "FRA\tMédoc\tPauillac", "USA\tMédoc\tPauillac", "unknown region 'Médoc (USA)'"},
    {"labels", "Médoc\tChâteau Essai", "Médoc\tPauillac", "label 'Pauillac (region 2)' stands"},
    {"labels", "Cru Bourgeois", "Cru Paysan", "unknown class 'Cru Paysan (FRA)'"},
    {"classifications", "Cru Bourgeois\n", "Cru\n", "unknown keyword 'Cru'"},
    {"classifications", "Village", "Cru Bourgeois", "class 'Cru Bourgeois (FRA)' stands"},
    {"glossary", "France", "Frankreich", "glossary.tsv:2: unknown country 'Frankreich'"},
    {"wineries", "California", "CALIFORNIA", "state 'CALIFORNIA (USA)' is written 'California"},
    {"wineries", "Pauillac; Cl", "pauillac; Cl", "label 'pauillac (region 2)' is written 'Pau"},
    {"wineries", "Pauillac; Cl", "Margaux; Cl", "wineries.tsv:2: unknown label 'Margaux'"},
    {"wineries", "Clairet @ Sud", "Clairet", "several labels 'Clairet' in the country"},
    {"varieties", "Merlau\tSteak", "Merlau\tSnake", "varieties.tsv:2: unknown pairing 'Snake'"},
    {"varieties", "Gamay", "GRENACHE", "variety 'Grenache' stands already in varieties.tsv:6"},
    {"pairings", "3\tBrie", "3\tBree", "unknown cheese 'Bree'"},
    {"pairings", "3\tBrie", "3\tRoquefort", "pairing of the cheese 'Roquefort' stands already"},
    {"pairings", "3\tBrie", "3\tx", "no line of pairings.tsv stands for the cheese 'Brie'"},
    {"pairings", "es Goulash", "x", "pairings.tsv:9: no text in Spanish"},
    {"cheeses", "ja Blue, from caves.", "x", "cheeses.tsv:2: no text in Japanese"},
    {"cheeses", "x\tMerlot\tx", "x\tMerlot\tChâteau Essai - [Château Essai]",
     "cheeses.tsv:4: general_wines.tsv names 'Monterey Jack' for one of the wines already"},
    {"cheeses", "Merlot\tPauillac", "Merlot\tMargaux", "unknown general wine 'Margaux'"},
    {"general_wines", "Woody; Earthy", "Woody; Earth", "Aroma has no mark 'Earth'"},
    {"general_wines", "Malbec; Merlot", "Merlot", "the main variety is not among"},
    {"general_wines", "LE\tFRA\tChâteau Essai", "LE\tFRA\tx", "type LE does not fit"},
    {"states", "Alaska\tAK", "Alaska\tAL", "short name 'AL (USA)' stands already"},
    {"countries", "German\t6\tY", "German\t6\tN", "State_Usage 'N' does not fit states.tsv"},
    {"countries", "German\t6\tY", "German\t5\tY", "language number 5 for 'German'"},
    {"languages", "\nPortuguese", "\n# Portuguese", "languages.tsv: the languages are not seven"},
    {"cellars", "\nx", "\nMine", "cellars.tsv: the cellars are not the one row 'x'"},
};

// Faults of the rows that the lines make, which a person mends in the lines.
const Fault Rules[] = {
    {"regions", "Bordeaux\tx", "Bordeaux\tMédoc", "Bordeaux is its own ancestor"},
    {"regions", "; Carignan", "", "varieties.tsv:9: no region grows Carignan"},
    {"regions", "FRA\tSud\tx", "FRA\tSud\tMédoc", "Sud lies in a region that lies in another"},
    {"regions", "USA\tNapa", "USA\tBare\tx\tx\nUSA\tNapa", "regions.tsv:5: nothing grows in Bare"},
    {"classifications", "Village\tMust", "Village\tx", "classifications.tsv:3: no term explains"},
    {"varieties", "Brisket", "Oxtail", "pairings.tsv:11: nothing suggests Brisket"},
    {"varieties", "Chardonnay\tWhite", "Chardonnay\tPale", "unknown colour 'Pale'"},
    {"labels", "Pauillac\tRed", "Pauillac\tRouge", "labels.tsv:2: unknown colour 'Rouge'"},
    {"pairings", "fr Goulash", "fr brisket", "'fr Brisket' stands twice in French"},
    {"pairings", "de Goulash", "Ungarisches Gulasch mit Semmelknödeln, Rotkohl und etwas Sahne",
     "longer than 60 characters"},
    {"pairings", "pt Picnic\t3", "pt Picnic\t4", "Multiuse is not 0 to 3"},
    {"cheeses",
     "Soft, of Meaux.\tes Soft, of Meaux.\tfr Soft, of Meaux.\tde Soft, of Meaux.\tit Soft, of "
     "Meaux.\tja Soft, of Meaux.\tpt Soft, of Meaux.",
     "x\tx\tx\tx\tx\tx\tx", "cheeses.tsv:3: no description"},
    {"varieties", "Merlau", "Gamay, Merlau", "varieties.tsv:2: 'Gamay' has a line of its own"},
    {"cheeses", "Blue-vein", "Blue", "cheeses.tsv:2: unknown type 'Blue'"},
    {"cheeses", "Roquefort\tFRA", "Roquefort\tUSA", "cheeses of USA do not stand together"},
    {"general_wines", "ROSE", "PINK", "general_wines.tsv:5: unknown colour 'PINK'"},
    {"general_wines", "ROSE", "RED", "its label is Rosé, the wine RED"},
    {"general_wines", "RED\tx\tMalbec", "RED\tROSE\tMalbec",
     "its label is Red, the wine RED and ROSE"},
    {"general_wines", "Merlot\tx\tDry", "Chardonnay\tx\tDry", "a red wine of the white grape"},
    {"general_wines", "Malbec; Merlot", "Malbec; Gamay", "Gamay does not grow in Médoc"},
    {"pairings", "de Goulash", "Goulash", "pairings.tsv:9: 'Goulash' is the same in German"},
    {"cheeses", "it Blue, from caves.", "Blue, from caves.",
     "cheeses.tsv:2: 'Blue, from caves.' is the same in Italian"},
    {"same_in_every_language", "German", "German; Italian", "'Rosé' is not the same in Italian"},
    {"same_in_every_language", "German", "German; French", "'Rosé' stands twice for French"},
    {"general_wines", "RED\tx\tMalbec", "RED\tRED\tMalbec", "the second colour is the first"},
    {"general_wines", "x\tRED\tx\tMerlot\tx", "x\tROSE\tx\tMerlot\tx", "offer RED and WHITE alone"},
    {"general_wines", "Merlot\tVA", "Syrah\tVA", "'Syrah' is not the name of its grape"},
    {"general_wines", "Woody; Earthy", "Woody; Woody", "the mark stands twice"},
    {"general_wines", "VA\tALL", "ZZ\tALL", "type ZZ does not fit"},
    {"general_wines", "Dry; Medium T", "Dry; Sweet; Medium T", "tastes that exclude each other"},
    {"wine_system", "USA", "ISL", "the user's country 'ISL' has no regions"},
    {"wine_taste_type", "Rosé\tTaste", "Rose\tTaste", "unknown colour or kind of mark"},
    {"words", "Head\tRed", "Head\tCrimson", "'Red' is expected here"},
    {"words", "Head\tGoat", "Head\tSheep", "'Goat' is expected here"},
    {"words", "\tFrm\t", "\tCap\t", "must be 'Wine_Cellar_Form' of type Frm"},
    {"words", "\tHead\t", "\tCap\t", "must be 'Color_Red' of type Head"},
    {"words", "Wine_Cellar_Form\tCellar_Word", "Wine_Form\tCellar_Word",
     "row 107 of Wine_Cellar_Form must be 'Cellar_Word' of type Head"},
    {"words", "\tCap\t", "\tCup\t", "words.tsv:2: unknown type 'Cup'"},
    {"words", "\nWine_Cellar_Form\tCellar_Main",
     "\nFind_File_Form\tImpCancel\tCap\ta\tb\tc\td\te\tf\tg\nWine_Cellar_Form\tCellar_Main",
     "Find_File_Form reads 34 texts, not 1"},
    {"wine_system", "\t1\n", "\t3\n", "Number_of_Cellars is neither 1 nor 2"},
    {"words", "Wine_Cellar_Form\tCellar_View", "Wine_Form_2\tCellar_View", "no screen asks for"},
    {"words", "Cellar_View", "Cellar_Main",
     "row 2 of Wine_Cellar_Form must be 'Cellar_View' of type Cap"},
    {"words", "\tAceptar", "\tAceptar %1", "other %-signs than in English in 'Aceptar %1'"},
    {"words", "Hints\tFirst_Shown\tHead\tThe", "Hints\tFirst_Shown\tHead\tA",
     "'The first %1 are shown.' is expected here"},
    {"words", "Price_Label\tHead\tPrice", "Price_Label\tHead\tMerit", "'Merit' stands twice"},
    {"words", "Mi cava\t", "Mi cava \t", "stray blank in 'Mi cava '"},
    {"replace_keys", "Rouge", "Rouges", "replace_keys.tsv does not lead 'Rouge' back"},
    {"replace_keys", "à\ta", "á\ta", "'á' stands twice"},
};

TEST(Lines, Each_Fault_Is_Told) {
  for (const auto& [file, from, to, problem] : faults) {
    SCOPED_TRACE(problem);
    const Small_Library small;
    ASSERT_NO_FATAL_FAILURE(small.Replace(file + std::string(".tsv"), from, to));
    Problems problems;
    small.Compile(problems);
    ASSERT_FALSE(problems.None());
    EXPECT_NE(problems.Lines().front().find(problem), std::string::npos) << Text_Of(problems);
  }
}

TEST(Line_Reports, All_Faults_Are_Told_At_Once) {
  const Small_Library small;
  small.Replace("regions.tsv", "Merlot; Malbec", "Mrlot; Mlbec");
  small.Replace("labels.tsv", "Sud", "Nord");
  Problems problems;
  small.Compile(problems);
  const std::string report = Text_Of(problems);
  for (const char* problem : {"'Mrlot'", "'Mlbec'", "labels.tsv:5: unknown region 'Nord (FRA)'"})
    EXPECT_NE(report.find(problem), std::string::npos) << report;
}

/// Where the first row of words.tsv that begins so stands, as a report says it.
std::string Words_Line(const Small_Library& small, const std::string& row) {
  const std::string text = Contents(small.Folder() + "/words.tsv");
  const std::size_t at = text.find("\n" + row) + 1;
  EXPECT_NE(at, 0U) << row;
  const auto lines = std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n');
  return "words.tsv:" + std::to_string(lines + 1) + ": ";
}

/// Changes how the first such row of words.tsv begins.
void Rename(const Small_Library& small, const std::string& from, const std::string& to) {
  small.Replace("words.tsv", "\n" + from, "\n" + to);
}

std::string Report_Of(const Small_Library& small) {
  Problems problems;
  small.Compile(problems);
  return Text_Of(problems);
}

// Rows whose place is their meaning: renamed, of another type, missing, swapped.
TEST(Line_Reports, Rows_Of_Screens_That_Read_By_Position) {
  const Small_Library small;
  Rename(small, "Cate_Add_Form\tView_Caption", "Cate_Add_Form\tCaption");
  Rename(small, "Cate_Add_Form\tAdd_Text\tHead", "Cate_Add_Form\tAdd_Text\tCap");
  Rename(small, "Select_Mult_Cat\tLabel1", "# no row");
  // The later one first: it is the first of its name only until the other one gets it.
  Rename(small, "Select_Mult_Varieties\tCheese_Text", "Select_Mult_Varieties\tRegion_Text");
  Rename(small, "Select_Mult_Varieties\tRegion_Text", "Select_Mult_Varieties\tCheese_Text");
  EXPECT_EQ(Report_Of(small),
            Words_Line(small, "Cate_Add_Form\tCaption") +
                "row 5 of Cate_Add_Form must be 'View_Caption' of type Head\n" +
                Words_Line(small, "Cate_Add_Form\tAdd_Text") +
                "row 15 of Cate_Add_Form must be 'Add_Text' of type Head\n" +
                Words_Line(small, "Select_Mult_Varieties\tCheese_Text") +
                "row 19 of Select_Mult_Varieties must be 'Region_Text' of type Head\n" +
                Words_Line(small, "Select_Mult_Varieties\tRegion_Text") +
                "row 21 of Select_Mult_Varieties must be 'Cheese_Text' of type Head\n" +
                Words_Line(small, "Select_Mult_Cat\tMSelectLab1") +
                "row 2 of Select_Mult_Cat must be 'Label1' of type Cap\n");
}

TEST(Line_Reports, Too_Many_Or_Too_Few_Rows_At_The_End) {
  const Small_Library small;
  Rename(small, "Cate_Add_Form\tCate_Add_Form", "# no row");
  small.Append("words.tsv", "Select_Mult_Cat\tMore\tHead\ta\tb\tc\td\te\tf\tg\n");
  EXPECT_EQ(Report_Of(small),
            Words_Line(small, "Cate_Add_Form\tAdd_Text") +
                "row 16 of Cate_Add_Form must be 'Cate_Add_Form' of type Frm, and is missing\n" +
                Words_Line(small, "Select_Mult_Cat\tMore") +
                "row 23 of Select_Mult_Cat is one too many\n");
}

TEST(Line_Reports, Optional_Files_May_Be_Missing) {
  const Small_Library small;
  std::remove((small.Folder() + "/region_texts.tsv").c_str());
  Problems none;
  small.Compile(none);
  EXPECT_TRUE(none.None()) << Text_Of(none);
  std::remove((small.Folder() + "/varieties.tsv").c_str());
  Problems problems;
  small.Compile(problems);
  EXPECT_EQ(problems.Lines().front(), "varieties.tsv: the file is missing");
}

TEST(Line_Reports, More_Than_The_Screens_Arrays_Hold) {
  const Small_Library small;
  std::string words, countries;
  for (int i = 0; i < 151; ++i)
    words += "Wine_Form\tLabel_" + std::to_string(i) + "\tCap\ta\tb\tc\td\te\tf\tg\n";
  for (int i = 0; i < 20; ++i) {
    const std::string name = "Z" + std::to_string(i);
    countries.append(name).append("\t").append(name);
    countries.append("\ta\tb\tc\td\te\tf\tEnglish\t3\tN\t0\tx\tx\tx\n");
  }
  small.Append("words.tsv", words);
  small.Append("countries.tsv", countries);
  Problems problems;
  small.Compile(problems);
  EXPECT_EQ(Text_Of(problems),
            "words.tsv: Wine_Form has more than 150 texts\n"
            "countries.tsv: more than 200 countries\n");
}

}  // namespace
