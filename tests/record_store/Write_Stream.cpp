// Writes bursts into a data file until it is killed, and says so after each commit. A burst is a
// bottle, three notes on it, and a change of the bottle before it. With one more argument it is one
// burst, and said before the commit.
#include <unistd.h>

#include <string>

#include "platform/record_store/Record_Store.h"

using namespace Record_Store;

static bool Say(Long number) {
  const std::string line = std::to_string(number) + "\n";
  return write(STDOUT_FILENO, line.data(), line.size()) > 0;
}

int main(int count, char** arguments) {
  const bool once = count > 3;
  const auto database = OpenDatabase(arguments[1], false, false, arguments[2]);
  for (;;) {
    Recordset bottles = database->OpenRecordset("Bottles");
    Recordset notes = database->OpenRecordset("Notes");
    bottles.Index("Bottle_ID");
    if (!bottles.Eof()) {
      bottles.MoveLast();
      bottles.Edit();
      bottles["Full"] = false;
      bottles.Update();
    }
    bottles.AddNew();
    const Long number = bottles["Bottle_ID"].As_Long();
    bottles["Name"] = std::string(static_cast<std::size_t>(number % 700), 'b');
    bottles["Full"] = true;
    bottles.Update();
    for (int i = 0; i < 3; ++i) {
      notes.AddNew();
      notes["Bottle"] = number;
      notes.Update();
    }
    if (once) Say(number);
    database->Commit();
    if (once || !Say(number)) return 0;
  }
}
