// The first window and the hub of the program: a title and the menu.
#pragma once

#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/Menu.h"
#include "platform/forms/Picture.h"
#include "platform/run_time/Values.h"

class Wine_Cellar_Form : public Forms::Form {
 public:
  Wine_Cellar_Form();

  /// While locked, none of the menus opens and the exit entry cannot be chosen.
  void Lock_All_Commands();
  void UnLock_All_Commands();

 protected:
  void Form_Load() override;
  void Form_Activate() override;

 private:
  /// What the main window does when an entry opens a screen.
  enum class Main_Window { Hides, Stays };

  void Lay_Out();
  void Set_Up_Handlers();
  /// When the entry is chosen, `command` becomes the current one and the screen opens. If there is
  /// no such screen, the main window stays whatever `main_window` says.
  void Let(Forms::Menu_Entry& entry, const char* command, const char* screen,
           Main_Window main_window = Main_Window::Hides);
  void Open_Screen(const char* screen, Main_Window main_window);
  void Initialize_Wine_Cellar_Language();
  void View_Cellar(int row);
  void Help_Comments_Click();
  void Set_All_Commands_Enabled(bool enabled);

  Text Comments_Line_1;
  Text Comments_Line_2;
  Text Comments_Line_3;
  Text Comments_Title;

  Forms::Picture Picture1{*this, "Picture1"};
  Forms::Picture Image1{*this, "Image1"};
  Forms::Label Wait_Label{*this, "Wait_Label", "Please wait while we load the system ...."};
  Forms::Label Version_Label{*this, "Version_Label"};
  Forms::Label Language_Version_Label{*this, "Language_Version_Label", "English Version"};
  Forms::Label Known_Faults_Label{*this, "Known_Faults_Label"};
  Forms::Label Corvale_Label{*this, "Corvale_Label", "Corvale", Forms::Label::Kind::Title};
  Forms::Picture Corvale_Logo{*this, "Corvale_Logo"};

  using Menu = Forms::Menu;
  using Entry = Forms::Menu_Entry;
  Menu Cellar_Main{*this, "Cellar_Main", "My Cellar"};
  Entry Cellar_View{Cellar_Main, "Cellar_View", "Display Cellar"};
  Entry Cellar_Add{Cellar_Main, "Cellar_Add", "Name Cellars"};
  Entry Cellar_Mod{Cellar_Main, "Cellar_Mod", "Modify Cellar Names"};
  Menu Cellars_View{Cellar_Main, "Cellars_View", "Set Current Cellar"};
  Entry Cellar1_View{Cellars_View, "Cellar1_View", "Cellar1"};
  Entry Cellar2_View{Cellars_View, "Cellar2_View", "Cellar2"};
  Entry Cellar_Print{Cellar_Main, "Cellar_Print", "Print Cellar"};
  Menu Cellars_Print{Cellar_Main, "Cellars_Print", "Print Cellars"};
  Entry Cellar1_Print{Cellars_Print, "Cellar1_Print", "Cellar1"};
  Entry Cellar2_Print{Cellars_Print, "Cellar2_Print", "Cellar2"};

  Menu Wine_Main{*this, "Wine_Main", "Wines"};
  Menu Wines_Cellar{Wine_Main, "Wines_Cellar", "Cellar Wines"};
  Entry Wine_Add{Wines_Cellar, "Wine_Add", "Add to Cellar"};
  Entry Wine_Uncork{Wines_Cellar, "Wine_Uncork", "Uncork"};
  Entry Wine_Mod{Wines_Cellar, "Wine_Mod", "Modify Wine Info"};
  Entry Wine_Cellar_Remove{Wines_Cellar, "Wine_Cellar_Remove", "Remove Used Wine from Cellar"};
  Entry Wine_Del{Wines_Cellar, "Wine_Del", "Delete Wine"};
  Entry Wines_Cellar_List{Wines_Cellar, "Wines_Cellar_List", "List Wines"};
  Menu Wines_Other{Wine_Main, "Wines_Other", "Other Wines"};
  Entry Wine_Other_Add{Wines_Other, "Wine_Other_Add", "Add New Wine"};
  Entry Wine_Other_Del{Wines_Other, "Wine_Other_Del", "Delete Wine"};
  Entry Wine_Other_Mod{Wines_Other, "Wine_Other_Mod", "Modify Information"};
  Entry Wines_Other_List{Wines_Other, "Wines_Other_List", "List Wines"};

  Menu Wineries_Main{*this, "Wineries_Main", "Wineries"};
  Entry Winery_Add{Wineries_Main, "Winery_Add", "Add New Winery"};
  Entry Winery_Mod{Wineries_Main, "Winery_Mod", "Modify Winery Info"};
  Entry Winery_View{Wineries_Main, "Winery_View", "Display Winery Info"};
  Entry Winery_Del{Wineries_Main, "Winery_Del", "Delete a Winery"};
  Entry Winery_List{Wineries_Main, "Winery_List", "List Wineries"};

  Menu Regions_Main{*this, "Regions_Main", "Wine Regions"};
  Entry Region_Add{Regions_Main, "Region_Add", "Add a Region"};
  Menu Region_Mod{Regions_Main, "Region_Mod", "Modify Region Info"};
  Entry Region_Mod_Var{Region_Mod, "Region_Mod_Var", "Varieties of a Region"};
  Entry Region_Mod_Other{Region_Mod, "Region_Mod_Other", "Other Information"};
  Entry Region_Del{Regions_Main, "Region_Del", "Delete a Region"};
  Entry Regions_List{Regions_Main, "Regions_List", "List  Regions"};
  Entry Region_Pair_Varieties{Regions_Main, "Region_Pair_Varieties", "Pair with Varieties"};

  Menu Labels_Main{*this, "Labels_Main", "Labels/Appellations"};
  Entry Labels_Add{Labels_Main, "Labels_Add", "Add new Label/Appellation"};
  Entry Labels_Del{Labels_Main, "Labels_Del", "Delete Label/Appellation"};
  Entry Labels_Mod{Labels_Main, "Labels_Mod", "Modify Labell/Appellation"};
  Entry Labels_View{Labels_Main, "Labels_View", "List Labels/Appellations"};

  Menu Classifications_Main{*this, "Classifications_Main", "Classifications"};
  Entry Classification_Add{Classifications_Main, "Classification_Add", "Add a New Classification"};
  Entry Classification_Del{Classifications_Main, "Classification_Del", "Delete Classification"};
  Entry Classification_Mod{Classifications_Main, "Classification_Mod", "Modify Classification"};
  Entry Classification_View{Classifications_Main, "Classification_View", "List Classifications"};

  Menu Variety_Main{*this, "Variety_Main", "Grape Varieties"};
  Entry Variety_Add{Variety_Main, "Variety_Add", "Add a Variety"};
  Entry Variety_Mod{Variety_Main, "Variety_Mod", "Modify Variety Info"};
  Entry Variety_Del{Variety_Main, "Variety_Del", "Delete a Variety"};
  Entry Variety_List{Variety_Main, "Variety_List", "List Varieties"};

  Menu Pairings_Main{*this, "Pairings_Main", "Pairings"};
  Entry Pairing_Add{Pairings_Main, "Pairing_Add", "Add a new Pairing"};
  Entry Pairing_Mod{Pairings_Main, "Pairing_Mod", "Modify a Pairing"};
  Entry Pairing_Del{Pairings_Main, "Pairing_Del", "Delete a Pairing"};
  Entry Pairings_List{Pairings_Main, "Pairings_List", "List Current Available Pairings"};
  Menu Pairing_Search{Pairings_Main, "Pairing_Search", "Wine Search"};
  Entry Pairing_Search_Cellar{Pairing_Search, "Pairing_Search_Cellar",
                              "for Pairings in our Wine Cellar"};
  Entry Pairing_Search_General{Pairing_Search, "Pairing_Search_General",
                               "for Pairings for Wines in General"};
  Entry Pairings_Hints{Pairings_Main, "Pairings_Hints", "Usefull Hints"};
  Entry Pairings_Temp{Pairings_Main, "Pairings_Temp", "Wine Serving Temperature"};
  Entry Pairings_Cheese{Pairings_Main, "Pairings_Cheese", "Cheese Pairings Chart"};

  Menu Cheeses_Main{*this, "Cheeses_Main", "Cheeses"};
  Entry Cheeses_Add{Cheeses_Main, "Cheeses_Add", "Add New"};
  Entry Cheeses_Mod{Cheeses_Main, "Cheeses_Mod", "Modify"};
  Entry Cheses_Del{Cheeses_Main, "Cheses_Del", "Delete"};
  Entry Cheeses_List{Cheeses_Main, "Cheeses_List", "List"};
  Menu Cheese_Pairings{Cheeses_Main, "Cheese_Pairings", "Pairings"};
  Entry Cheese_Pairings_General{Cheese_Pairings, "Cheese_Pairings_General",
                                "With Wines in General"};
  Entry Cheeses_Pairing_Cellar{Cheese_Pairings, "Cheeses_Pairing_Cellar", "With Cellar Wines"};

  Menu Glossary_Main{*this, "Glossary_Main", "Glossary"};
  Entry Glossary_Display{Glossary_Main, "Glossary_Display", "Display"};
  Entry Glossary_Print{Glossary_Main, "Glossary_Print", "Print"};

  Menu Help_Main{*this, "Help_Main", "Help"};
  Entry Help_Info{Help_Main, "Help_Info", "Information Flow"};
  Entry Help_Color{Help_Main, "Help_Color", "Color Explanation"};
  Entry Help_Comments{Help_Main, "Help_Comments", "Send Comments Sugestions"};
  Entry Help_About{Help_Main, "Help_About", "About Corvale"};

  Entry Wine_Cellar_Exit{*this, "Wine_Cellar_Exit", "Exit"};
};
