// Makes a program's folder with a large cellar, for looking at the screens by hand:
//
//   large_cellar FOLDER [WINES [WINERIES]]
//
// copies the program in too, so that FOLDER/wine_cellar opens that cellar. Fewer wineries than are
// delivered means: these alone.
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "bench/Large_Cellar.h"

int main(int argc, char** argv) {
  namespace fs = std::filesystem;
  if (argc < 2 || argc > 4) {
    std::fprintf(stderr, "usage: large_cellar FOLDER [WINES [WINERIES]]\n");
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
  const fs::path program = DELIVERED_FOLDER "/wine_cellar";
  if (fs::exists(program)) {
    fs::copy_file(program, folder / "wine_cellar", fs::copy_options::overwrite_existing);
  }
  std::printf("%s\n", (folder / "dbase/Wine_Cellar.mdb").c_str());
}
