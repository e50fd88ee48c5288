#include "terminal/desk/sample_user.h"

namespace algo::terminal {

void FillSampleUser(THostData& data) {
  data.profile = {.kind = 1, .flag = false, .account = "SAMPLE-01", .user = "trader1"};
  data.accounts = {"SAMPLE-01", "SAMPLE-02", "SAMPLE-FUND", "SAMPLE-HOUSE"};
  data.rights = {"AlgoTabOrderEntry", "OEMarketOrder",  "OEStopM",         "OEStopL", "OEAO",  "OEALO",
                 "OEEnhanced",        "OEMarketOnOpen", "OEMarketOnClose", "OELOC",   "OEFAK", "OEFOK"};
}

}  // namespace algo::terminal
