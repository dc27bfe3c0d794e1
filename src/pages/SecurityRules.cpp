#include "pages/SecurityRules.h"

#include "pages/PdfVersions.h"

SecurityOpenings OpenSecurity(const SecuritySwitches& switches, int version, bool ePdfEnabled) {
  SecurityOpenings open;
  open.ownerSwitch = AllowsSecurity(version);
  open.owner = open.ownerSwitch && switches.owner;
  open.user = open.owner && switches.user;
  open.detailedRights = open.owner && HasDetailedRights(version);
  open.editing = AllowsEditingPassword(version) && ePdfEnabled;
  open.editingPassword = open.editing && switches.independent;
  return open;
}

bool IsConfirmed(PasswordKind kind, const SecuritySwitches& switches, bool isSet) {
  switch (kind) {
    case kOwnerPassword:
      return isSet && switches.owner;
    case kUserPassword:
      return isSet && switches.owner && switches.user;
    default:
      return isSet && switches.independent;
  }
}

bool NeedsConfirmation(bool wanted, const SecuritySwitches& switches,
                       const PasswordState (&passwords)[kPasswordCount]) {
  for (const PasswordKind kind : kPasswordKinds)
    if (wanted && passwords[kind].isTouched && IsConfirmed(kind, switches, passwords[kind].isSet)) return true;
  return false;
}
