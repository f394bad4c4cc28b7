// A program's folder with a large cellar: the delivered data file, and in it many more wineries and
// wines than most users will ever have. For the benchmarks, and for looking at the screens by hand.
#pragma once

#include <string>

struct Cellar_Size {
  int wineries = 3000;        ///< in all, with the delivered ones
  int wines = 30000;          ///< of the first cellar
  int wines_elsewhere = 400;  ///< of another cellar, spread among them
  int pairings = 5;           ///< of each wine
};

/// Makes dbase/Wine_Cellar.mdb and photos in `folder`, which may exist; a data file there is
/// replaced. The rows are the same at each call, but that the vintages are the last fifty up to
/// this year. Every wine's label, classification and varieties are rows of the winery's region or
/// country; about every twentieth has no label. Of the
/// pairings some are common and some are rare (Paired_Wines.h). Needs no file to be open, and
/// leaves none open.
void Make_Large_Cellar(const std::string& folder, const Cellar_Size& size = {});
