// Whatever a user types on the screen of the cellar gives its message or is stored and shown again.

#include <QString>
#include <map>

#include "tests/support/Cellar_Program.h"

namespace {

constexpr const char* button = "Multi_Functional_Command";

std::string Repeated(const char* text, int times) {
  return QString(text).repeated(times).toStdString();
}

using Cellar_Fuzz = Cellar_Program;

struct Number {
  Text text;
  Text fields;        // those that take it: Bottles, Price, Alcohol
  Text shown;         // by them after a restart
  Text alcohol = {};  // by the field for alcohol, where that differs
};

std::vector<Number> Numbers() {
  std::vector<Number> numbers{{"0", "BPA", "0"},
                              {" 7 ", "BPA", "7"},
                              {"-0", "BPA", "0"},
                              {"1,250", "BPA", "1250"},
                              {"1e3", "BPA", "1000"},
                              {"32767", "BPA", "32767"},
                              {Repeated("0", 30'000) + "7", "BPA", "7"},
                              {"2.5", "PA", "2.5"},
                              {"40000", "PA", "40000"},
                              {"0.00005", "PA", "0", "0.00005"},
                              {"922337203685477", "PA", "922337203685477", "922337180385280"},
                              {"922337203685478", "A", "", "922337180385280"},
                              {"3.4028235e38", "A", "3.4028235e+38"}};
  for (const char* none : {"-1", "12,50", "1e400", "1e-400", "NaN", "inf", "0x10", "١٢", "１２",
                           "\u202e12", "7🍷", "7\n8", "7' OR '1'='1"}) {
    numbers.push_back({none, "", ""});
  }
  numbers.push_back({Repeated("9", 100'000), "", ""});
  return numbers;
}

TEST_F(Cellar_Fuzz, A_number_gives_its_message_or_is_stored_and_shown_again) {
  const std::vector<Number> numbers = Numbers();
  const std::map<char, std::string> fields{
      {'B', "Total_Bottles_Text"}, {'P', "Price_Text"}, {'A', "Alcohol_Text"}};
  for (std::size_t count = 0; count < numbers.size(); ++count) Put_Wine(Sample_Wine());
  for (const bool restarted : {false, true}) {
    Start_With("Wine_Mod");
    for (std::size_t place = 0; place < numbers.size(); ++place) {
      const Number& number = numbers[place];
      const auto [text, taken_by, shown, alcohol] = number;
      Pick_Wine(static_cast<Long>(place + 1));
      for (const auto& [letter, field] : fields) {
        const bool taken = taken_by.find(letter) != Text::npos;
        const Text expected = letter == 'A' && !alcohol.empty() ? alcohol : shown;
        if (restarted) {
          EXPECT_EQ(Shown_Text(field), taken ? expected : "5") << text.substr(0, 40);
          continue;
        }
        const Box_Script boxes;
        Paste_Into(field, text);
        Press("Tab");
        ASSERT_EQ(boxes.Boxes().size(), taken ? 0U : 1U) << field << text.substr(0, 40);
        if (taken) continue;
        EXPECT_EQ(boxes.Boxes()[0].title, "ILLEGAL NUMBER");
        Click(button);  // does not get past the field
        EXPECT_EQ(Focused(), field) << text.substr(0, 40);
        Type_Into(field, "5");
      }
      const Box_Script boxes;
      if (!restarted) Click(button);
      EXPECT_EQ(boxes.Boxes().size(), restarted ? 0U : 1U);
    }
  }
}

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

TEST_F(Cellar_Fuzz, A_text_is_stored_to_the_letter_and_shown_again) {
  const Texts texts{"It's \"x\"; -- ' OR 1=1",
                    "first\r\nsecond\r\n\r\n fourth ",
                    "🍷👨‍👩‍👧 \u202eabc\u202c שלום مرحبا",
                    "à la fin\u00a0: 12\u202f%",
                    "\t\\0 %s &amp; <b>&</b>",
                    Repeated("Ünï🍇", 25'000),
                    "\r\n",
                    "x"};
  for (std::size_t wine = 1; wine < texts.size(); ++wine) Put_Wine(Sample_Wine());
  const Box_Script boxes;
  Start_With("Wine_Mod");
  for (std::size_t place = 0; place < texts.size(); ++place) {
    if (place + 1 < texts.size()) {
      Pick_Wine(static_cast<Long>(place + 1));
    } else {
      Start_With("Wine_Add");
      Fill_Add();
    }
    Paste_Into("Description_Text", texts[place]);
    Paste_Into("Comments_Text", texts[texts.size() - 1 - place]);
    Click(button);
    EXPECT_EQ(boxes.Boxes().size(), place + 1);
  }
  const auto stored = [this](const char* field) {
    return Stored("SELECT English FROM Wines w JOIN Words_for_Data t ON t.Multi_Language_ID = w." +
                  Text(field) + " ORDER BY w.Wine_ID");
  };
  EXPECT_TRUE(stored("Description") == texts);
  EXPECT_TRUE(stored("Comments") == Texts(texts.rbegin(), texts.rend()));
  Start_With("Cellar1_View");
  for (std::size_t place = 0; place < texts.size(); ++place) {
    Pick_Wine(static_cast<Long>(place + 1));
    const auto& box = Forms::Screen("Wine_Form").Get<Forms::Text_Box>("Description_Text");
    EXPECT_TRUE(box.Text() == (texts[place] == "x" ? " " : texts[place])) << place;
  }
}

}  // namespace
