// All resource and control numbers, for the templates and for the code.
//
// Most numbers are known outside (help topics, other components, scripts that operate the dialogs) and may not change.
// A control without such a number gets one from 0x5000 up, never -1, so that code, tests and screen readers can name it:
//   0x5000 + (page number - 100) * 0x40   the page with that number (100 to 123)
//   0x5600 to 0x563F                      the placeholder page
//   0x5700 up                             dialogs that are no pages, 0x40 each
// Numbers are unique within a dialog only: the same one may stand for another control elsewhere. Hence each name carries
// its page.
#pragma once

// Dialogs: host page, child pages by page number, placeholder.
#define IDD_HOST_PAGE 187
#define IDD_PAPER_PAGE 144
#define IDD_WATERMARK_PAGE 139
#define IDD_ACTION_PAGE 143
#define IDD_SAVING_PAGE 145
#define IDD_MAIL_PAGE 189
#define IDD_DOCUMENT_INFO_PAGE 147
#define IDD_INFO_PAGE 146
#define IDD_LANGUAGE_PAGE 1366
#define IDD_GRAPHIC_PAGE 141
#define IDD_APPEARANCE_PAGE 142
#define IDD_FONTS_PAGE 138
#define IDD_COLORSPACE_PAGE 196
#define IDD_ZUGFERD_PAGE 350
#define IDD_LINKS_PAGE 190
#define IDD_ATTACHMENTS_PAGE 342
#define IDD_FORM_FIELDS_PAGE 181
#define IDD_FORM_FIELDS_COLOR_PAGE 183
#define IDD_SECURITY_PAGE 140
#define IDD_FORMAT_PAGE 192
#define IDD_BOOKMARK_PAGE 194
#define IDD_COCKPIT_PAGE 1365
#define IDD_UPDATE_PAGE 1367
#define IDD_STATISTICS_PAGE 347
#define IDD_NO_DOC_SETTINGS_PAGE 191

// Icons: the sheet's two tabs, and the product.
#define IDI_BASIC_SETTINGS 221
#define IDI_DOCUMENT_PROPERTIES 222
#define IDI_PRODUCT 512

// Host page
#define IDC_HOST_TAB 1243

// Placeholder page
#define IDC_NO_DOC_SETTINGS_LINK 1254
#define IDC_NO_DOC_SETTINGS_WHEN 0x5600
#define IDC_NO_DOC_SETTINGS_WHERE 0x5601

// Graphic page (108)
#define IDC_GRAPHIC_COMPRESSION 1020
#define IDC_GRAPHIC_QUALITY 1049
#define IDC_GRAPHIC_RESOLUTION 1050
#define IDC_GRAPHIC_COLOR_DEPTH 1107
#define IDC_GRAPHIC_BY_FILE_SIZE 1141
#define IDC_GRAPHIC_USER_DEFINED 1142
#define IDC_GRAPHIC_HELP_LINK 1144
#define IDC_GRAPHIC_VIDEO_LINK 1145
#define IDC_GRAPHIC_SLIDER 1146
#define IDC_GRAPHIC_RESOLUTION_BAR 1147
#define IDC_GRAPHIC_QUALITY_BAR 1148
#define IDC_GRAPHIC_PICTURE_BIG 1149
#define IDC_GRAPHIC_PICTURE_MAXIMUM 1150
#define IDC_GRAPHIC_PICTURE_COMPACT 1151
#define IDC_GRAPHIC_PICTURE_SMALL 1152
#define IDC_GRAPHIC_PICTURE_MINIMUM 1153
#define IDC_GRAPHIC_FILE_SIZE_LABEL 1154
#define IDC_GRAPHIC_FILE_SIZE 1155
#define IDC_GRAPHIC_PICTURE_QUALITY_LABEL 1156
#define IDC_GRAPHIC_PICTURE_QUALITY 1157
#define IDC_GRAPHIC_OPTIMIZED_FOR_LABEL 1158
#define IDC_GRAPHIC_OPTIMIZED_FOR 1159
#define IDC_GRAPHIC_HINT 1160
#define IDC_GRAPHIC_SIGN_WARNING 1161
#define IDC_GRAPHIC_SIGN_INFORMATION 1162
#define IDC_GRAPHIC_RESOLUTION_LABEL 0x5200
#define IDC_GRAPHIC_COMPRESSION_LABEL 0x5201
#define IDC_GRAPHIC_QUALITY_LABEL 0x5202
#define IDC_GRAPHIC_COLOR_DEPTH_LABEL 0x5203

// Format page (118)
#define IDC_FORMAT_VERSION 1017
#define IDC_FORMAT_MANUAL_LINK 1249
#define IDC_FORMAT_ADD_IN_FEATURES 1263
#define IDC_FORMAT_SEPARATOR 1264
#define IDC_FORMAT_SAVE_PDF 1267
#define IDC_FORMAT_SAVE_EPDF 1268
#define IDC_FORMAT_SAVE_ASK 1269
#define IDC_FORMAT_EPDF_LABEL 1270
#define IDC_FORMAT_ENGINE_LABEL 1271
#define IDC_FORMAT_ENGINE_DRIVER 1272
#define IDC_FORMAT_ENGINE_RTF 1273
#define IDC_FORMAT_HINT 1274
#define IDC_FORMAT_SIGN_INFORMATION 1275
#define IDC_FORMAT_SIGN_WARNING 1276
#define IDC_FORMAT_VERSION_LABEL 0x5480
