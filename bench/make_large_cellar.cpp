// Makes a program's folder with a large cellar, for looking at the screens by hand:
//
//   large_cellar FOLDER [WINES [WINERIES [LANGUAGE]]]
//
// copies the program in too, so that FOLDER/wine_cellar opens that cellar. Fewer wineries than are
// delivered means: these alone. LANGUAGE is the number of a language, 3 (English) to 9.
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "bench/Large_Cellar.h"
#include "core/tables/Recipes_Wines_Common_DB.h"

namespace {

void Set_Language(const std::string& data_file, int number) {
  const auto file = Record_Store::OpenDatabase(data_file, false, false, Connect_Text(data_file));
  Record_Store::Recordset system = file->OpenRecordset("Wine_System");
  system.Edit();
  system.Fields("System_Language_Number") = number;
  system.Update();
  file->Commit();
}

}  // namespace

int main(int argc, char** argv) {
  namespace fs = std::filesystem;
  if (argc < 2 || argc > 5) {
    std::fprintf(stderr, "usage: large_cellar FOLDER [WINES [WINERIES [LANGUAGE]]]\n");
    return 2;
  }
  Cellar_Size size;
  if (argc > 2) size.wines = std::atoi(argv[2]);
  size.wines_elsewhere = size.wines / 75;
  if (argc > 3) size.wineries = std::atoi(argv[3]);
  const fs::path folder = argv[1];
  if (fs::exists(folder / "dbase/Wine_Cellar.mdb")) {
    std::fprintf(stderr, "%s has a data file already, which stays as it is\n", argv[1]);
    return 1;
  }
  Make_Large_Cellar(folder, size);
  if (argc > 4) Set_Language((folder / "dbase/Wine_Cellar.mdb").string(), std::atoi(argv[4]));
  const fs::path program = DELIVERED_FOLDER "/wine_cellar";
  if (fs::exists(program)) {
    fs::copy_file(program, folder / "wine_cellar", fs::copy_options::overwrite_existing);
  }
  std::printf("%s\n", (folder / "dbase/Wine_Cellar.mdb").c_str());
}
