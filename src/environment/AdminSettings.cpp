#include "environment/AdminSettings.h"

#include "DriverLIB/SecureWipe.h"

#define NEMPDF_ADMIN_KEY(key, type) {L## #key, AdminEntry::type, AdminField(&AdminSettings::key)},

// The search order of the keys is older than the order of the record, and FontsAntialiasing_Override stands in it
// twice.
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
