#include "terminal/desk/session/sample_user.h"

namespace algo::terminal::desk {

void FillSampleUser(THostData& data) {
  data.profile = {.kind = 1, .flag = false, .account = "SAMPLE-01", .user = "trader1"};
  data.accounts = {"SAMPLE-01", "SAMPLE-02", "SAMPLE-FUND", "SAMPLE-HOUSE"};
  data.rights = {"AlgoTabOrderEntry", "OEMarketOrder",  "OEStopM",         "OEStopL", "OEAO",  "OEALO",
                 "OEEnhanced",        "OEMarketOnOpen", "OEMarketOnClose", "OELOC",   "OEFAK", "OEFOK"};
}

void FillFirstSettings(THostData& data) {
  // No order goes out unseen before the user says so.
  data.config[data.section]["ConfirmationPlaceOrd"] = "Y";
  // A view in a link group takes what is copied in its group, and nothing else.
  data.config[std::string(PlatformSection)]["DefaultGroupDataMode"] = "0";
}

}  // namespace algo::terminal::desk
