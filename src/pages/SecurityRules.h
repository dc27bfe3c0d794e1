// What the security page decides: which of its settings are open, and when passwords have to be typed a second time.
#pragma once

// In characters.
constexpr int kLongestPassword = 31;

// The passwords of a document, in the order in which the page and the confirmation show them. They number the rows of
// tables, and so the type is no enum class.
enum PasswordKind {
  kOwnerPassword,    // for changing the security options
  kUserPassword,     // for opening the document
  kEditingPassword,  // for editing an e.pdf document
  kPasswordCount
};
inline constexpr PasswordKind kPasswordKinds[] = {kOwnerPassword, kUserPassword, kEditingPassword};

struct SecuritySwitches {
  bool owner = false;        // there is a password for changing the security options, and with it the rights
  bool user = false;         // there is one for opening: only beside the other
  bool independent = false;  // editing an e.pdf has a password of its own
};

struct SecurityOpenings {
  bool ownerSwitch = false;
  bool owner = false;           // the password, the rights, and the switch of the password for opening
  bool user = false;            // the password for opening
  bool detailedRights = false;  // the rights that PDF 1.3 does not have
  bool editing = false;         // the choice among the passwords for editing
  bool editingPassword = false;
};

// What is open with a PDF version (pages/PdfVersions.h), unless an administrator has fixed it. `ePdfEnabled`: the host
// makes e.pdf documents.
SecurityOpenings OpenSecurity(const SecuritySwitches& switches, int version, bool ePdfEnabled);

struct PasswordState {
  bool isSet = false;
  bool isTouched = false;  // by the user since it was loaded
};

// The password is in use, and has to be typed again when there is a confirmation.
bool IsConfirmed(PasswordKind kind, const SecuritySwitches& switches, bool isSet);

// Whether there is one: a password in use has been touched, and the user wants it.
bool NeedsConfirmation(bool wanted, const SecuritySwitches& switches, const PasswordState (&passwords)[kPasswordCount]);
