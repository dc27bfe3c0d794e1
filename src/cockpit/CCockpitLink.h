// A link of the cockpit: it tells the page when the keyboard comes to it.
#pragma once

#include "cockpit/RowFocus.h"
#include "controls/CMyHyperLink.h"

class CCockpitLink : public CMyHyperLink {
 protected:
  bool OnWindowMessage(WindowMessage& message) override {
    TellRowFocus(*this, message);
    return CMyHyperLink::OnWindowMessage(message);
  }
};
