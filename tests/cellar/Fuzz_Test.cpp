// Whatever a user types for a date gives its message or passes.

#include <map>

#include "tests/support/Cellar_Program.h"
#include "tests/support/Hostile_Texts.h"

namespace {

using Cellar_Fuzz = Cellar_Program;

TEST_F(Cellar_Fuzz, A_date_gives_its_message_or_passes) {
  const std::map<Text, Texts> dates{
      {"", {"", "  ", "6/15/2026 14:30:05", "2020-02-29", "1/1/2006"}},
      {"This date is in the FUTURE !!!", {"6/15/2026 14:30:06", "6/16/2026"}},
      {"This date is TOO far into the PAST !!!", {"12/31/2005", "1/1/0100"}},
      {"This is an Illegal Date !!!",
       {"2020-02-30", "31.02.2020", "1/1/0000", "1/1/20200", "14:30", "1/1/2020 25:00", "1e400",
        "NaN", "١٢/١/٢٠٢٠", "\u202e1/1/2020", "1/1/2020'; DROP TABLE Wines",
        Repeated("1/", 30'000)}}};
  Put_Wine(Sample_Wine());
  for (const bool add : {true, false}) {
    Start();
    Pick(add ? "Wine_Add" : "Wine_Mod");
    add ? Choose_Winery() : Pick_Wine(1);
    for (const char* field : {"Date_Added_Text", "Last_Date_Uncorked_Text"}) {
      for (const auto& [fault, texts] : dates) {
        for (const Text& text : texts) {
          const Box_Script boxes;
          Paste_Into(field, text);
          Press("Tab");
          EXPECT_EQ(boxes.Texts(), fault.empty() ? Texts{} : Texts{fault}) << text.substr(0, 40);
          EXPECT_EQ(Focused() == field, !fault.empty()) << text.substr(0, 40);
          Paste_Into(field, "");
        }
      }
    }
  }
}

}  // namespace
