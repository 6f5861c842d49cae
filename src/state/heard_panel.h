// The stations-heard part of the main window: the own call and the counter above the list, the
// list and its hidden copy, the sort options, the buttons under it and its popup menus. The MHeard
// list and its operations fill it.
#pragma once

#include "platform/controls.h"
#include "state/menu_array.h"

namespace tesk {

struct HeardPanel {
  Label lblMHeardCall;  // the own call beside the MHeard list; the heard report compares to it
  OptionButton OptSort, OptUnsort;
  ListBox LstMHeardList;     // the MHeard list: colours from [DataBox Forecolor]/[Backcolor]
  Label Lblmheardautoerase;  // "MHeard auto-erase ON"
  Label StationTeller = [] {
    Label l;
    l.caption = "0";
    l.toolTip = "Number of stations heard";
    return l;
  }();
  ListBox lstMHeardbak = [] {
    ListBox b;
    b.visible = false;
    return b;
  }();
  Button cmdMHeardClear, cmdMheardSave, cmdViewMHeardList;
  // mnuMHeard: menumheardoptions 20 to 100 and the paste entries 10, 20, 30; items 55 and 58,
  // and 25 and 30 of mnuPictureViewerImg, are visible only while the list's popup is up.
  MenuArray menumheardoptions, menumheardoptionspaste, mnuPictureViewerImg;
  bool mnuMHeardPopup = false;  // set by a right release on the list: the view pops it up
};

}  // namespace tesk
