#include "main_window/Wine_Cellar_Form.h"

#include "core/Cellar_Menu.h"
#include "core/Common_Words.h"
#include "core/Gereral_Processes.h"
#include "core/Globals.h"
#include "core/Known_Faults.h"
#include "core/MultiLanguage_Processes.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "platform/forms/Layout.h"
#include "platform/forms/Message_Box.h"
#include "platform/forms/Screens.h"
#include "platform/run_time/Conversions.h"
#include "platform/run_time/Guard.h"

using Forms::Screen;

namespace {

constexpr const char* contact_address = "comments@winecellar.example";

}  // namespace

Wine_Cellar_Form::Wine_Cellar_Form() : Form("Wine_Cellar_Form", "Wine Cellar") {
  for (Forms::Control* hidden : std::initializer_list<Forms::Control*>{
           &Cellar_Add, &Cellar_Mod, &Cellars_View, &Cellars_Print, &Wait_Label}) {
    hidden->Set_Visible(false);
  }
  Lay_Out();
  Set_Up_Handlers();
}

void Wine_Cellar_Form::Lay_Out() {
  using namespace Forms;
  Picture1.Set_Picture(":/title.svg");
  Image1.Set_Picture(":/bunch.svg");
  Corvale_Logo.Set_Picture(":/logo.svg");
  Set_Content(Column({Place(Picture1).Grow(), Corvale_Logo,
                      Row({Place(Image1).Centred(), Corvale_Label, Wait_Label, Stretch(),
                           Version_Label, Language_Version_Label, Known_Faults_Label})}));
  Set_Exit(Wine_Cellar_Exit);
}

void Wine_Cellar_Form::Let(Entry& entry, const char* command, const char* screen,
                           Main_Window main_window) {
  entry.Click = [this, command, screen, main_window] {
    Current_Command = command;
    Open_Screen(screen, main_window);
  };
}

void Wine_Cellar_Form::Open_Screen(const char* screen, Main_Window main_window) {
  if (!Screen(screen).Exists()) return;
  if (Screen(screen).Open() && main_window == Main_Window::Hides) Hide();
}

// Entries that are not named here have no action: they can be chosen and do nothing. (The two
// documents under Pairings have none yet either.)
void Wine_Cellar_Form::Set_Up_Handlers() {
  constexpr auto stays = Main_Window::Stays;
  Let(Cellar_View, "CellarView", "Wine_Form");
  Let(Cellar_Add, "CellarNames", "Cellar_Names_Form", stays);
  Let(Cellar_Mod, "CellarMod", "Cellar_Names_Form", stays);
  Cellar1_View.Click = [this] { View_Cellar(1); };
  Cellar2_View.Click = [this] { View_Cellar(2); };
  Let(Wine_Add, "WineAdd", "Wine_Form");
  Let(Wine_Uncork, "WineUncork", "Wine_Form");
  Let(Wine_Mod, "WineMod", "Wine_Form");
  Let(Wine_Del, "WineDel", "Wine_Form");
  Let(Wines_Cellar_List, "CellarView", "Wine_Form");
  Let(Wine_Other_Add, "WineOtherAdd", "Mobile_Wine_Form");
  Let(Wine_Other_Del, "WineOtherDel", "Mobile_Wine_Form");
  Let(Wine_Other_Mod, "WineOtherMod", "Mobile_Wine_Form");
  Let(Wines_Other_List, "OtherView", "Mobile_Wine_Form");
  Let(Winery_Add, "WineryAdd", "Wineries_Form");
  Let(Winery_Mod, "WineryMod", "Wineries_Form", stays);
  Let(Winery_View, "WineryList", "Wineries_Form", stays);
  Let(Winery_Del, "WineryDel", "Wineries_Form", stays);
  Let(Winery_List, "WineryList", "Wineries_Form", stays);
  Let(Region_Add, "RegionsAdd", "Regions_Form");
  Let(Region_Mod_Var, "RegionsModVar", "Regions_Add_Mod_Varieties_Form");
  Let(Region_Mod_Other, "RegionsMod", "Regions_Form");
  Let(Region_Del, "RegionsDel", "Regions_Form");
  Let(Regions_List, "RegionsView", "Regions_Form");
  Let(Region_Pair_Varieties, "VarietiesAddRegion", "Regions_Form");
  Let(Labels_Add, "LabelAdd", "Label_Form");
  Let(Labels_Del, "LabelDel", "Regions_Form");
  Let(Labels_Mod, "LabelMod", "Regions_Form");
  Let(Labels_View, "LabelView", "Regions_Form");
  Let(Classification_View, "ClassificationView", "Classification_Form");
  Let(Variety_Add, "VarietyAdd", "Varieties_Form");
  Let(Variety_Mod, "VarietyMod", "Varieties_Form");
  Let(Variety_Del, "VarietyDel", "Varieties_Form");
  Let(Variety_List, "VarietyList", "Varieties_Form");
  Let(Pairing_Add, "MaridageAdd", "Cate_Add_Form");
  Let(Pairing_Mod, "MaridageMod", "Cate_Add_Form");
  Let(Pairings_List, "MaridageView", "Cate_Add_Form");
  Let(Pairing_Search_Cellar, "WineSearch", "Select_Mult_Maridages_Form");
  Let(Pairing_Search_General, "MobileSearch", "Select_Mult_Maridages_Form");
  Let(Pairings_Cheese, "CheeseList", "Cheeses_Form");
  Let(Cheeses_Add, "CheeseAdd", "Cheeses_Form");
  Let(Cheeses_Mod, "CheeseMod", "Cheeses_Form");
  Let(Cheeses_List, "CheeseList", "Cheeses_Form");
  Let(Cheese_Pairings_General, "CheeseList", "Cheeses_Form");
  Let(Cheeses_Pairing_Cellar, "CheeseParingsCellar", "Cheeses_Form");
  Glossary_Display.Click = [this] { Open_Screen("Glossary_Form", stays); };
  Glossary_Print.Click = [this] { Open_Screen("Mobile_Phone_Form", stays); };
  Let(Help_Info, "HelpInfo", "Help_Info_Form");
  Let(Help_Color, "HelpColor", "Help_Colors_Form");
  Help_Comments.Click = [this] { Help_Comments_Click(); };
  Wine_Cellar_Exit.Click = [] { End_Process(0); };
}

// The words of the language replace every caption: the menu says again what the cellars are called.
void Wine_Cellar_Form::Form_Load() {
  Start_System();
  Read_Language_Words("Wine_Cellar_Form", *this);
  Initialize_Wine_Cellar_Language();
  Version_Label.Set_Caption("V " + Wine_System.Version);
  Known_Faults_Label.Set_Caption(Hint_Text(Screen_Words::Faults_Mended));
  Known_Faults_Label.Set_Visible(Known_Faults_Are_Mended());
  Set_Cellar_Menu();
}

void Wine_Cellar_Form::Initialize_Wine_Cellar_Language() {
  Move_Behind_Caption();
  for (int color = 1; color <= 5; ++color) Color_Names[color] = Next_Language_Word();
  for (int type = 1; type <= 10; ++type) Cheese_Types[type] = Next_Language_Word();
  for (int milk = 1; milk <= 6; ++milk) Milk_Types[milk] = Next_Language_Word();
  for (Text* word : {&Current_Cellar_Word, &Cellar_Word, &For_Pairings_Word, &With_Word,
                     &Comments_Line_1, &Comments_Line_2, &Comments_Line_3, &Comments_Title}) {
    *word = Next_Language_Word();
  }
}

void Wine_Cellar_Form::Form_Activate() {
  Region_Or_Label_Changed = false;
  if (Wine_System.Number_of_Cellars > 1) Caption_Main_Window();
}

void Wine_Cellar_Form::View_Cellar(int row) {
  Current_Command = "CellarView";
  Open_Table(Cellars_Recordset, "Cellars");
  if (row == 2) Cellars_Recordset.MoveNext();
  Read_Cellars_Record();
  Current_Cellar_ID = To_Integer(Cellars.ID);
  Current_Cellar_Name = Cellars.Cellar_Name;
  Caption_Current_Cellar();
  Close_Table(Cellars_Recordset);
  Open_Screen("Wine_Form", Main_Window::Hides);
}

void Wine_Cellar_Form::Help_Comments_Click() {
  Current_Command = "HelpComments";
  Forms::Message_Box(Comments_Line_1 + " " + contact_address + New_Line + New_Line +
                         Comments_Line_2 + New_Line + New_Line + Comments_Line_3,
                     Comments_Title);
}

void Wine_Cellar_Form::Set_All_Commands_Enabled(bool enabled) {
  for (Forms::Control* command : std::initializer_list<Forms::Control*>{
           &Cellar_Main, &Wine_Main, &Wineries_Main, &Regions_Main, &Labels_Main,
           &Classifications_Main, &Variety_Main, &Pairings_Main, &Cheeses_Main, &Glossary_Main,
           &Help_Main, &Wine_Cellar_Exit}) {
    command->Set_Enabled(enabled);
  }
}

void Wine_Cellar_Form::Lock_All_Commands() { Set_All_Commands_Enabled(false); }
void Wine_Cellar_Form::UnLock_All_Commands() { Set_All_Commands_Enabled(true); }
