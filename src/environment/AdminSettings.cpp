#include "environment/AdminSettings.h"

#include "DriverLIB/SecureWipe.h"

#define NEMPDF_ADMIN_KEY(key, type) {L## #key, AdminEntry::type, AdminField(&AdminSettings::key)},

// The keys are searched in another order than their fields stand in: the document's author, subject, keywords and title
// here, and FontsAntialiasing_Override, which has two rows, around ComparableMode_Override.
const AdminKey kAdminKeys[] = {
    NEMPDF_ADMIN_ACTIONS(NEMPDF_ADMIN_KEY)       //
    NEMPDF_ADMIN_TIFF(NEMPDF_ADMIN_KEY)          //
    NEMPDF_ADMIN_AUTHOR(NEMPDF_ADMIN_KEY)        //
    NEMPDF_ADMIN_SUBJECT(NEMPDF_ADMIN_KEY)       //
    NEMPDF_ADMIN_KEYWORDS(NEMPDF_ADMIN_KEY)      //
    NEMPDF_ADMIN_TITLE(NEMPDF_ADMIN_KEY)         //
    NEMPDF_ADMIN_PICTURES(NEMPDF_ADMIN_KEY)      //
    NEMPDF_ADMIN_ANTIALIASING(NEMPDF_ADMIN_KEY)  //
    NEMPDF_ADMIN_COMPARABLE(NEMPDF_ADMIN_KEY)    //
    NEMPDF_ADMIN_ANTIALIASING(NEMPDF_ADMIN_KEY)  //
    NEMPDF_ADMIN_DOCUMENT(NEMPDF_ADMIN_KEY)      //
    {nullptr, AdminEntry::End, {}},
};

#undef NEMPDF_ADMIN_KEY

AdminSettings::~AdminSettings() {
  WipeText(EncryptOwnerPassword_Override);
  WipeText(EncryptUserPassword_Override);
  WipeText(StationeryInfos_Override);
}
