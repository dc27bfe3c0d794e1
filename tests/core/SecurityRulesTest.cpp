// What is open on the security page, and when passwords are confirmed: every combination.
#include "pages/SecurityRules.h"

#include <gtest/gtest.h>

#include <set>
#include <tuple>

namespace {

// The versions of the list and their neighbours.
constexpr int kVersions[] = {0,   12,  13,  14,  15,  16,  17,  18,  19,  99,  100, 101,
                             102, 103, 104, 105, 106, 107, 108, 150, 199, 200, 201, 0xFFFF};

constexpr bool kBoth[] = {false, true};

TEST(SecurityRules, VersionsAndSwitchesOpen) {
  const std::set<int> pdfA = {100, 101, 102, 103, 104, 105, 106, 107}, pdfA1And2 = {100, 101, 102, 103, 104};
  for (const int version : kVersions)
    for (const bool owner : kBoth)
      for (const bool user : kBoth)
        for (const bool independent : kBoth)
          for (const bool ePdf : kBoth) {
            const SecurityOpenings open = OpenSecurity({owner, user, independent}, version, ePdf);
            const bool plain = !pdfA.contains(version), editable = !pdfA1And2.contains(version);
            EXPECT_EQ(std::tuple(plain, plain && owner, plain && owner && user, plain && owner && version != 13,
                                 editable && ePdf, editable && ePdf && independent),
                      std::tuple(open.ownerSwitch, open.owner, open.user, open.detailedRights, open.editing,
                                 open.editingPassword))
                << version << owner << user << independent << ePdf;
          }
}

// In the words of the rule: the owner is on, and its password or that of the user, who is on as well, was touched and
// is not empty; or the same of the password for editing, where it is independent.
TEST(SecurityRules, PasswordsThatWereTouchedAreConfirmed) {
  for (int bits = 0; bits < 1 << 10; ++bits) {
    const auto bit = [bits](int number) { return (bits >> number & 1) != 0; };
    const bool wanted = bit(0), owner = bit(1), user = bit(2), independent = bit(3);
    const PasswordState states[kPasswordCount] = {{bit(4), bit(5)}, {bit(6), bit(7)}, {bit(8), bit(9)}};
    const bool ofOwner = owner && ((bit(4) && bit(5)) || (bit(6) && bit(7) && user));
    const bool ofEditing = bit(8) && bit(9) && independent;
    EXPECT_EQ(wanted && (ofOwner || ofEditing), NeedsConfirmation(wanted, {owner, user, independent}, states)) << bits;
  }
}

TEST(SecurityRules, PasswordsInUseAreAskedFor) {
  for (int bits = 0; bits < 1 << 4; ++bits) {
    const bool isSet = bits & 1, owner = bits & 2, user = bits & 4, independent = bits & 8;
    const SecuritySwitches switches{owner, user, independent};
    EXPECT_EQ(isSet && owner, IsConfirmed(kOwnerPassword, switches, isSet)) << bits;
    EXPECT_EQ(isSet && owner && user, IsConfirmed(kUserPassword, switches, isSet)) << bits;
    EXPECT_EQ(isSet && independent, IsConfirmed(kEditingPassword, switches, isSet)) << bits;
  }
}

}  // namespace
