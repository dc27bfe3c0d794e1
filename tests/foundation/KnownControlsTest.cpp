// Controls and English captions of the templates that are known outside by number, and how the pages need them.
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <tuple>
#include <utility>
#include <vector>

#include "resources/ResourceIds.h"
#include "support/ModuleResources.h"

namespace {

using namespace module_resources;

struct KnownControl {
  WORD dialog;
  DWORD id;
  const wchar_t* className;
  const wchar_t* text;
};

class KnownEnglishControl : public testing::TestWithParam<KnownControl> {};

constexpr KnownControl kKnownControls[] = {
    {141, 1141, L"Button", L"&PDF file size"},
    {141, 1146, L"msctls_trackbar32", L""},
    {141, 1142, L"Button", L"&Userdefined setting"},
    {141, 1050, L"ComboBox", L""},
    {141, 1147, L"ScrollBar", L""},
    {141, 1020, L"ComboBox", L""},
    {141, 1049, L"ComboBox", L""},
    {141, 1148, L"ScrollBar", L""},
    {141, 1107, L"ComboBox", L""},
    {141, 1149, L"Static", L""},
    {141, 1150, L"Static", L""},
    {141, 1151, L"Static", L""},
    {141, 1152, L"Static", L""},
    {141, 1153, L"Static", L""},
    {141, 1154, L"Static", L"File size:"},
    {141, 1155, L"Static", L""},
    {141, 1156, L"Static", L"Graphic quality:"},
    {141, 1157, L"Static", L""},
    {141, 1158, L"Static", L"Optimized for:"},
    {141, 1159, L"Static", L""},
    {141, 1160, L"Static", L""},
    {141, 1161, L"Static", L""},
    {141, 1162, L"Static", L""},
    {141, 1144, L"Static", L"Help: Tips && tricks for small PDF files"},
    {141, 1145, L"Static", L"Online Video"},
    {141, IDC_GRAPHIC_RESOLUTION_LABEL, L"Static", L"&Resolution:"},
    {141, IDC_GRAPHIC_COMPRESSION_LABEL, L"Static", L"&Compression:"},
    {141, IDC_GRAPHIC_QUALITY_LABEL, L"Static", L"&Quality:"},
    {141, IDC_GRAPHIC_COLOR_DEPTH_LABEL, L"Static", L"Color &depth:"},
    {138, 1054, L"Button", L"&Do not embed fonts"},
    {138, 1055, L"Button", L"Embed &all fonts used"},
    {138, 1056, L"Button", L"Do not embed stan&dard fonts"},
    {138, 1057, L"Button", L"Embed fonts &selectively"},
    {138, 1162, L"Static", L""},
    {138, 1161, L"Static", L""},
    {138, IDC_FONTS_NOTE, L"Static", L"Font embedding will enlarge the PDF file."},
    {138, 1136, L"Static", L""},
    {138, 1277, L"Static", L"Embed these &fonts:"},
    {138, 1032, L"ListBox", L""},
    {138, 1178, L"Button", L">>"},
    {138, 1051, L"Button", L">"},
    {138, 1052, L"Button", L"<"},
    {138, 1179, L"Button", L"<<"},
    {138, 1137, L"Static", L""},
    {138, 1278, L"Static", L"&Never embed these fonts:"},
    {138, 1053, L"ListBox", L""},
    {138, 1134, L"Static", L"Help: In which cases my font will not be embeded into the PDF?"},
    {192, 1017, L"ComboBox", L""},
    {192, IDC_FORMAT_VERSION_LABEL, L"Static", L"&PDF version:"},
    {192, 1263, L"Button", L""},
    {192, 1270, L"Static", L"e.pdf:"},
    {192, 1267, L"Button", L"Create PDF or Special format"},
    {192, 1268, L"Button", L"Create e.pdf (for reprocessing in Word)"},
    {192, 1269, L"Button", L"Ask always"},
    {192, 1264, L"Static", L""},
    {192, 1271, L"Static", L"choice of conversion engine:"},
    {192, 1272, L"Button", L"virtual printer driver"},
    {192, 1273, L"Button", L""},
    {192, 1274, L"Static", L""},
    {192, 1275, L"Static", L""},
    {192, 1276, L"Static", L""},
    {192, 1249, L"Static", L"Manual"},
    {1365, IDC_COCKPIT_EXPLANATION, L"Static", L"Here you can conduct and modify user specific settings."},
    {1365, IDC_COCKPIT_RESTORE_LABEL, L"Static", L"To reset the settings, please click here:"},
    {1365, 1444, L"Button", L"Restore defaults"},
    {1365, IDC_COCKPIT_FILE_SIZE_GROUP, L"Button", L"File size"},
    {1365, IDC_COCKPIT_LAYOUT_GROUP, L"Button", L"Layout"},
    {1365, IDC_COCKPIT_OUTPUT_GROUP, L"Button", L"Output"},
    {1365, IDC_COCKPIT_FORM_GROUP, L"Button", L"Form"},
    {1365, IDC_COCKPIT_SECURITY_GROUP, L"Button", L"Security"},
    {1365, 1412, L"Static", L""},
    {1365, 1413, L"Static", L""},
    {1365, 1414, L"Static", L""},
    {1365, 1415, L"Static", L""},
    {1365, 1416, L"Static", L""},
    {1365, 1417, L"Static", L""},
    {1365, 1418, L"Static", L""},
    {1365, 1419, L"Static", L""},
    {1365, 1420, L"Static", L""},
    {1365, 1421, L"Static", L""},
    {1365, 1422, L"Static", L""},
    {1365, 1423, L"Static", L""},
    {1365, 1424, L"Static", L""},
    {1365, 1425, L"Static", L""},
    {1365, 1426, L"Static", L""},
    {1365, 1427, L"Static", L""},
    {1365, 1454, L"Static", L""},
    {1365, 1470, L"Static", L""},
    {142, 1066, L"ComboBox", L""},
    {142, 1067, L"ComboBox", L""},
    {142, 1068, L"Edit", L""},
    {142, 1069, L"ComboBox", L""},
    {142, 1181, L"ComboBox", L""},
    {142, 1187, L"ComboBox", L""},
    {142, 1191, L"Button", L"Hide &symbol bar"},
    {142, 1190, L"Button", L"Hide &menu bar"},
    {142, 1192, L"Button", L"Open &window in the center of the screen"},
    {142, 1193, L"Button", L"Arrange window size to &content"},
    {142, 1188, L"Button", L"Show &document title as window title (instead of filename)"},
    {142, 1189, L"Button", L"Display only &PDF content (hide status bar, scroll bars, etc.)"},
    {142, 1175, L"Static", L"Help: What means \"appearance\"?"},
    {142, IDC_APPEARANCE_LAYOUT_LABEL, L"Static", L"Page la&yout:"},
    {142, IDC_APPEARANCE_SIZE_LABEL, L"Static", L"Page &size:"},
    {142, IDC_APPEARANCE_PAGE_LABEL, L"Static", L"O&pen at page:"},
    {142, IDC_APPEARANCE_MODE_LABEL, L"Static", L"Window mode when &opening:"},
    {142, IDC_APPEARANCE_FULL_SCREEN_LABEL, L"Static", L"&Full screen mode:"},
    {142, IDC_APPEARANCE_DIRECTION_LABEL, L"Static", L"&Read/Display direction:"},
    {196, 1333, L"Button", L"&RGB (recommended)"},
    {196, 1334, L"Button", L"&CMYK"},
    {196, 1335, L"Static", L"Help: What means \"colorspace\"?"},
    {144, IDC_PAPER_FORMAT_LABEL, L"Static", L"&Format:"},
    {144, IDC_PAPER_SIZE_LABEL, L"Static", L"&Size:"},
    {144, IDC_PAPER_SCALE_WIDTH_LABEL, L"Static", L"&Width:"},
    {144, IDC_PAPER_SCALE_HEIGHT_LABEL, L"Static", L"&Height:"},
    {144, IDC_PAPER_SCALED_WIDTH_LABEL, L"Static", L"Width in"},
    {144, IDC_PAPER_SCALED_HEIGHT_LABEL, L"Static", L"Height in"},
    {144, IDC_PAPER_SCALE_LABEL, L"Static", L"&Application-specific:"},
    {144, IDC_PAPER_MARGIN_LEFT_LABEL, L"Static", L"L&eft:"},
    {144, IDC_PAPER_MARGIN_TOP_LABEL, L"Static", L"&Top:"},
    {144, IDC_PAPER_BORDER_LABEL, L"Static", L"&Border:"},
    {144, IDC_PAPER_SOURCE_LABEL, L"Static", L"Paper s&ource:"},
    {144, IDC_PAPER_DESTINATION_LABEL, L"Static", L"Output bi&n:"},
    {144, IDC_PAPER_OTHER_GROUP, L"Button", L"Other"},
    {144, 1001, L"Button", L"&Portrait"},
    {144, 1002, L"Button", L"&Landscape"},
    {144, 1060, L"Button", L"&Retain width-to-height ratio"},
    {144, 1059, L"Button", L"&Centered"},
    {144, 1124, L"Button", L"&Duplex print"},
    {144, 1125, L"Button", L"&Upper edge binding"},
    {144, 1000, L"ComboBox", L""},
    {144, 1004, L"ComboBox", L""},
    {144, 1126, L"ComboBox", L""},
    {144, 1131, L"ComboBox", L""},
    {144, 1016, L"Edit", L""},
    {144, 1018, L"Edit", L""},
    {144, 1023, L"Edit", L""},
    {144, 1024, L"Edit", L""},
    {144, 1021, L"Edit", L""},
    {144, 1026, L"Edit", L""},
    {144, 1027, L"Edit", L""},
    {144, 1056, L"Static", L""},
    {144, 1058, L"Static", L""},
    {144, 1246, L"Static", L""},
    {144, 1247, L"Static", L""},
    {144, 1244, L"Static", L""},
    {144, 1162, L"Static", L""},
    {147, IDC_DOCUMENT_INFO_TITLE_LABEL, L"Static", L"&Title:"},
    {147, IDC_DOCUMENT_INFO_AUTHOR_LABEL, L"Static", L"&Author:"},
    {147, IDC_DOCUMENT_INFO_SUBJECT_LABEL, L"Static", L"&Subject:"},
    {147, IDC_DOCUMENT_INFO_KEYWORDS_LABEL, L"Static", L"&Keywords:"},
    {147, 1101, L"Static", L"Creator:"},
    {147, 1102, L"Static", L"Generator:"},
    {147, 1073, L"Edit", L""},
    {147, 1070, L"Edit", L""},
    {147, 1071, L"Edit", L""},
    {147, 1072, L"Edit", L""},
    {147, 1074, L"Static", L""},
    {147, 1075, L"Static", L""},
    {147, 1096, L"Static", L""},
    {147, 1162, L"Static", L""},
    {147, 1103, L"Static", L""},
    {147, 1104, L"Static", L""},
    {147, 1105, L"Static", L""},
    {147, 1106, L"Static", L""},
    {140, 1265, L"Static", L""},
    {140, 1266, L"Static", L"Change"},
    {140, 1022, L"Button", L"Enter password for changing the PDF &security options"},
    {140, 1280, L"Static", L"Pass&word:"},
    {140, 1003, L"Edit", L""},
    {140, 1008, L"Button", L"&Allow printing"},
    {140, 1012, L"Button", L"Allow &modifications to the document"},
    {140, 1006, L"Button", L"Allow comments and no&tes to be added"},
    {140, 1010, L"Button", L"Allow the &reproduction of text, pictures and other contents"},
    {140, 1013, L"Button", L"Allow &voice output programs to read the document aloud"},
    {140, 1014, L"Button", L"Allow the completion of &form fields and allow signing"},
    {140, 1015, L"Button", L"Allow page mo&difications (paste, delete and rotate)"},
    {140, 1019, L"Button", L"Defining a password for &opening the PDF in a PDF reader"},
    {140, 1279, L"Static", L"&Password:"},
    {140, 1005, L"Edit", L""},
    {140, 1258, L"Button", L""},
    {140, 1259, L"Button", L"Use password for changing the PDF security options for &editing"},
    {140, 1260, L"Button", L"&Independent password:"},
    {140, 1007, L"Edit", L""},
    {140, 1245, L"Button", L"&Confirm passwords always"},
    {140, 1180, L"Button", L"Passwords visi&ble"},
    {140, 1139, L"Static", L"Help: Passwords - why?"},
    {IDD_PASSWORD_CONFIRMATION, 1003, L"Edit", L""},
    {IDD_PASSWORD_CONFIRMATION, 1005, L"Edit", L""},
    {IDD_PASSWORD_CONFIRMATION, 1007, L"Edit", L""},
    {IDD_PASSWORD_CONFIRMATION, 1170, L"Static", L""},
    {IDD_PASSWORD_CONFIRMATION, 1171, L"Static", L""},
    {IDD_PASSWORD_CONFIRMATION, 1174, L"Static", L""},
    {IDD_PASSWORD_CONFIRMATION, 1175, L"Static", L""},
    {IDD_PASSWORD_CONFIRMATION, 1176, L"Static", L""},
    {IDD_PASSWORD_CONFIRMATION, 1177, L"Static", L""},
    {IDD_PASSWORD_CONFIRMATION, 1172, L"Button", L"Passwords v&isible"},
    {IDD_PASSWORD_CONFIRMATION, IDC_CONFIRM_OWNER_LABEL, L"Static",
     L"Enter Password for changing the PDF &security options:"},
    {IDD_PASSWORD_CONFIRMATION, IDC_CONFIRM_USER_LABEL, L"Static", L"Enter password to &open the PDF in a PDF Reader:"},
    {IDD_PASSWORD_CONFIRMATION, IDC_CONFIRM_EDITING_LABEL, L"Static", L""},
    {IDD_PASSWORD_CONFIRMATION, IDOK, L"Button", L"OK"},
    {IDD_PASSWORD_CONFIRMATION, IDCANCEL, L"Button", L"Cancel"},
    {IDD_PASSWORD_CONFIRMATION, 9, L"Button", L"Help"},
    {181, 1195, L"Button", L"&Convert form fields "},
    {181, 1210, L"Button", L"The &PDF Reader will set the size of form field text automatically"},
    {181, 1199, L"Button", L"Identify width of &text fields from the given default text"},
    {181, 1200, L"Button", L"allow unlimited &characters for input"},
    {181, 1201, L"Button", L"Use uniform width for text &fields:"},
    {181, 1202, L"Edit", L""},
    {181, 1203, L"Button", L"allow unlimited c&haracters for input"},
    {181, 1207, L"Static", L"Characters"},
    {181, 1194, L"Static", L"Help: How I insert form fields to my document?"},
    {181, 1205, L"Static", L"Text size"},
    {181, 1206, L"Static", L"Width of text fields"},
    {181, 1208, L"Static", L"Each field is as wide as its default text in the document."},
    {181, 1209, L"Static", L"All fields have room for this number of characters."},
    {181, 1250, L"Static", L""},
    {181, 1330, L"Static", L""},
    {181, 1331, L"Static", L""},
    {183, IDC_FORM_COLORS_TEXT_GROUP, L"Button", L"Colors for textboxes"},
    {183, IDC_FORM_COLORS_CHECK_GROUP, L"Button", L"Colors for checkboxes"},
    {183, IDC_FORM_COLORS_DROPDOWN_GROUP, L"Button", L"Colors for dropdown elements"},
    {183, IDC_FORM_COLORS_TEXT_BORDER_LABEL, L"Static", L"Border:"},
    {183, IDC_FORM_COLORS_TEXT_BACKGROUND_LABEL, L"Static", L"Background:"},
    {183, IDC_FORM_COLORS_CHECK_BORDER_LABEL, L"Static", L"Border:"},
    {183, IDC_FORM_COLORS_CHECK_BACKGROUND_LABEL, L"Static", L"Background:"},
    {183, IDC_FORM_COLORS_DROPDOWN_BORDER_LABEL, L"Static", L"Border:"},
    {183, IDC_FORM_COLORS_DROPDOWN_BACKGROUND_LABEL, L"Static", L"Background:"},
    {183, 1211, L"Button", L""},
    {183, 1214, L"Button", L""},
    {183, 1218, L"Button", L""},
    {183, 1221, L"Button", L""},
    {183, 1225, L"Button", L""},
    {183, 1228, L"Button", L""},
    {183, 1212, L"Static", L""},
    {183, 1213, L"Static", L""},
    {183, 1215, L"Static", L""},
    {146, 1038, L"Static", L""},
    {146, 1087, L"Static", L""},
    {146, 1111, L"Static", L""},
    {146, 1132, L"Static", L""},
    {146, 1183, L"Button", L"&Versions Info"},
    {146, 1186, L"Static", L""},
    {146, 1168, L"Static", L"Frequently Asked Questions: FAQ"},
    {146, 1169, L"Static", L"NEM Support Forum"},
    {146, 1170, L"Static", L"NEM pdf Newsletter subscribe"},
    {146, 1171, L"Static", L"Online Video"},
    {146, 5013, L"Button", L"Support"},
    {1366, 1381, L"Button", L""},
    {1366, 1382, L"Button", L""},
    {1366, 1383, L"Button", L""},
    {1366, 1384, L"Button", L""},
    {1366, 1385, L"Button", L""},
    {1366, 1386, L"Static", L""},
    {1366, 1388, L"Static", L""},
    {1366, 1389, L"Static", L""},
    {1366, 1390, L"Static", L""},
    {1367, 1452, L"Button", L""},
    {1367, 1453, L"Button", L""},
    {1367, 1454, L"Button", L""},
    {1367, 1455, L"Button", L""},
    {1367, 1456, L"Button", L""},
    {1367, 1457, L"Button", L""},
    {347, 1484, L"Static", L""},
    {347, 1487, L"Static", L""},
    {347, 1490, L"Static", L""},
    {347, 1493, L"Static", L""},
    {347, 1496, L"Static", L""},
    {347, 1507, L"Static", L""},
    {347, 1508, L"Static", L""},
    {347, 1509, L"Static", L""},
    {347, 1510, L"Static", L""},
    {347, 1511, L"Static", L""},
    {347, 1500, L"Static", L""},
    {347, 1501, L"Static", L""},
    {347, 1506, L"Static", L""},
    {347, 1512, L"Static", L""},
    {347, 1513, L"Static", L""},
    {347, 1514, L"Static", L""},
    {347, 1515, L"Static", L""},
    {347, 1516, L"Static", L""},
    {347, 1453, L"Button", L""},
    {347, 1486, L"Static", L"What's NEM zentoX?"},
    {347, 1489, L"Static", L"What's NEM bindereY?"},
    {347, 1520, L"Static", L"What's stationery?"},
    {347, IDC_STATISTICS_DOCUMENTS_LABEL, L"Static", L"Created documents total:"},
    {347, IDC_STATISTICS_ZUGFERD_LABEL, L"Static", L"Documents created with NEM zentoX:"},
    {347, IDC_STATISTICS_EPDF_LABEL, L"Static", L"ePDF documents created "},
    {347, IDC_STATISTICS_STATIONERY_LABEL, L"Static", L"Documents created with stationery:"},
    {347, IDC_STATISTICS_PASSWORD_LABEL, L"Static", L"Encrypted documents:"},
    {347, IDC_STATISTICS_MONTH_DOCUMENTS_LABEL, L"Static", L"Created documents:"},
    {347, IDC_STATISTICS_MONTH_ZUGFERD_LABEL, L"Static", L"Documents created with NEM zentoX:"},
    {347, IDC_STATISTICS_MONTH_EPDF_LABEL, L"Static", L"Documents created with NEM bindereY:"},
    {347, IDC_STATISTICS_MONTH_STATIONERY_LABEL, L"Static", L"Documents created with stationery:"},
    {347, IDC_STATISTICS_MONTH_PASSWORD_LABEL, L"Static", L"Encrypted documents:"},
    {347, IDC_STATISTICS_MONTH, L"Button", L"Montly statistics"},
    {185, 1111, L"Static", L""},
    {185, 1230, L"Static", L"n/a"},
    {185, 1231, L"Static", L"n/a"},
    {185, 1232, L"Static", L"n/a"},
    {185, 1233, L"Static", L"n/a"},
    {185, 1234, L"Static", L"n/a"},
    {185, 1235, L"Static", L"n/a"},
    {185, 1237, L"Static", L"n/a"},
    {185, 1345, L"Static", L""},
    {185, 1346, L"Static", L""},
    {185, 1347, L"Static", L""},
    {185, 1353, L"Static", L""},
    {185, 1354, L"Static", L""},
    {185, 1355, L"Static", L""},
    {185, 1356, L"Static", L""},
    {185, 1357, L"Static", L""},
    {185, IDOK, L"Button", L"OK"},
    {145, 1038, L"ComboBox", L""},
    {145, 1469, L"ComboBox", L""},
    {145, 1031, L"Edit", L""},
    {145, 1122, L"Static", L"Target folder:"},
    {145, 1034, L"Edit", L""},
    {145, 1124, L"Static", L"Filename:"},
    {145, 1033, L"Button", L"Search"},
    {145, 1030, L"ComboBox", L""},
    {145, 1236, L"Static", L"If exists:"},
    {145, 1163, L"Button", L"Add following characters to the e.pdf document name:"},
    {145, 1035, L"Edit", L""},
    {145, 1164, L"Static", L"Help: Wherefore I need these settings?"},
    {145, 1081, L"Button", L"Save settings"},
    {145, 1061, L"Button", L"&all applications use the same settings"},
    {145, 1076, L"Button", L"the calling application currently running &manages the settings"},
    {145, 1077, L"Button", L""},
    {145, 1080, L"Static", L""},
    {145, 1078, L"Button", L"stores the settings &permanently"},
    {145, 1079, L"Button", L"&when the application is started, settings are retrieved from the printer setup"},
    {145, IDC_SAVING_TYPE_LABEL, L"Static", L"Saving type:"},
    {145, IDC_SAVING_LOCATION_LABEL, L"Static", L"Folder:"},
    {143, 1007, L"Button", L""},
    {143, 1083, L"Button", L"Start &program:"},
    {143, 1085, L"Edit", L""},
    {143, 1084, L"Button", L"&Browse"},
    {143, 1086, L"Edit", L""},
    {143, 1117, L"Static", L"Pa&rameters:"},
    {143, 1140, L"Static", L"Help: What is an action?"},
    {189, 1009, L"Button", L"Send by &e-mail"},
    {189, 1011, L"Button", L"Send &immediately (no more dialog)"},
    {189, 1035, L"Edit", L""},
    {189, 1118, L"Static", L"&To:"},
    {189, 1036, L"Edit", L""},
    {189, 1119, L"Static", L"&Subject:"},
    {189, 1039, L"Edit", L""},
    {189, 1120, L"Static", L"&Message:"},
    {190, 1238, L"Button", L"Recognize &links in printed text"},
    {190, 1239, L"ComboBox", L""},
    {190, IDC_LINKS_BORDER_LABEL, L"Static", L"A&ppearance:"},
    {190, 1240, L"ComboBox", L""},
    {190, IDC_LINKS_WIDTH_LABEL, L"Static", L"W&idth:"},
    {190, 1241, L"Button", L""},
    {190, IDC_LINKS_COLOR_LABEL, L"Static", L"&Color:"},
    {342, 1242, L"Button", L"&Use file attachments"},
    {342, 5010, L"ListBox", L""},
    {342, 1256, L"Button", L"+ &Add"},
    {342, 1257, L"Button", L"-  &Remove"},
    {342, 5011, L"ComboBox", L""},
    {342, 5012, L"Button", L"&Show file attachments on opening of e.pdf documents"},
    {342, 1521, L"Button", L"File attachments"},
    {350, 1452, L"Button", L"Create ZUGFeRD-invoice"},
    {350, 1524, L"Button", L"Create from existing xml"},
    {350, 1525, L"Button", L"Create from marked content (NEM tagWell)"},
    {350, 1472, L"Edit", L""},
    {350, 1479, L"Static", L"ZUGFeRD XML file:"},
    {350, 1453, L"Button", L"Browse"},
    {350, 1474, L"Button", L"Delete file after embedding"},
    {350, 1527, L"Button", L"Show the ZUGFeRD invoice after creation"},
    {350, 1528, L"Static", L"Help: What doesn marked content mean?"},
    {139, 1065, L"Button", L"&Use watermark"},
    {139, 1062, L"Edit", L""},
    {139, IDC_WATERMARK_FILE_LABEL, L"Static", L"Image &file:"},
    {139, 1063, L"Button", L"&Browse"},
    {139, 1064, L"Button", L"Place &Watermark in the foreground"},
    {139, 1138, L"Static", L""},
    {139, 1177, L"Static", L"Help: What means \"watermark\"?"},
    {139, 1068, L"Button", L"&Use Stationery"},
    {139, 1291, L"SysListView32", L""},
    {139, 1066, L"Button", L"&Add"},
    {139, 1067, L"Button", L"&Properties"},
    {139, 1069, L"Button", L"&Display"},
    {139, 1070, L"Button", L"&Delete"},
    {139, 1071, L"Button", L"Place &Stationery in the foreground"},
    {139, 1178, L"Static", L"Help: What means \"Stationery\"?"},
    {139, 1523, L"Button", L"Watermark"},
    {139, 5014, L"Button", L"Stationery"},
    {197, IDC_STATIONERY_NAME_LABEL, L"Static", L"Description:"},
    {197, 1341, L"Edit", L""},
    {197, IDC_STATIONERY_FILE_LABEL, L"Static", L"File:"},
    {197, 1319, L"Edit", L""},
    {197, 1340, L"Button", L"Merge the first page of the stationery paper behind every page of the output-PDF"},
    {197, 1337, L"Button",
     L"Merge the first paper of the stationery paper with the first page, merge the second page with all other pages "
     L"of the output-PDF "},
    {197, 1338, L"Button",
     L"Merge the first page of the stationery paper with the first page of the output-PDF. All other pages are "
     L"unchanged"},
    {197, 1339, L"Button", L"Merge every page of the stationery paper with the corresponding page of the document"},
    {197, 1342, L"Button", L"&OK"},
    {197, 1343, L"Button", L"&Apply"},
    {197, 1344, L"Button", L"&Cancel"},
    {194, 1285, L"Button", L"&Use bookmarks"},
    {194, 1290, L"SysListView32", L""},
    {194, 1310, L"Button", L"&New"},
    {194, 1312, L"Button", L"&Copy"},
    {194, 1311, L"Button", L"&Edit"},
    {194, 1305, L"Button", L"&Remove"},
    {194, 1306, L"Button", L"Remo&ve All"},
    {194, 1329, L"Button", L"Select &All"},
    {194, 1480, L"Static", L""},
    {194, 1284, L"Static", L"Help: What does \"Bookmark\" mean?"},
    {195, IDC_BOOKMARK_FORMAT_NAME_LABEL, L"Static", L"Name:"},
    {195, 1318, L"Edit", L""},
    {195, IDC_BOOKMARK_FORMAT_LEVEL_LABEL, L"Static", L"Level:"},
    {195, 1321, L"ComboBox", L""},
    {195, IDC_BOOKMARK_FORMAT_FONT_LABEL, L"Static", L"Font:"},
    {195, 1307, L"ComboBox", L""},
    {195, IDC_BOOKMARK_FORMAT_SIZE_LABEL, L"Static", L"Size:"},
    {195, 1308, L"ComboBox", L""},
    {195, IDC_BOOKMARK_FORMAT_STYLE_LABEL, L"Static", L"Style:"},
    {195, 1313, L"Button", L"Bold"},
    {195, 1314, L"Button", L"Italic"},
    {195, 1315, L"Button", L"Underline"},
    {195, IDC_BOOKMARK_FORMAT_COLOUR_LABEL, L"Static", L"Color:"},
    {195, 1309, L"Button", L""},
    {195, IDC_BOOKMARK_FORMAT_PREVIEW_GROUP, L"Button", L"Preview"},
    {195, 1327, L"Button", L""},
    {195, 1328, L"Static", L""},
    {195, 1324, L"Button", L"&OK"},
    {195, 1322, L"Button", L"&Apply"},
    {195, 1323, L"Button", L"&Cancel"},
    {191, IDC_NO_DOC_SETTINGS_WHEN, L"Static",
     L"These settings are only available when generating a new PDF or e.pdf document."},
    {191, IDC_NO_DOC_SETTINGS_WHERE, L"Static",
     L"For generating a new document please change to the tab page Basic Settings."},
    {191, 1254, L"Static", L"What is the difference between Basic Settings and e.pdf Document Properties?"},
};

}  // namespace

// A template without texts of its own has no language.
TEST_P(KnownEnglishControl, HasItsClassAndText) {
  const bool isNeutral = Languages(RT_DIALOG, GetParam().dialog) == std::set<WORD>{LANG_NEUTRAL};
  const Dialog dialog = ReadDialog(GetParam().dialog, isNeutral ? LANG_NEUTRAL : kEnglish);
  const Control* control = FindControl(dialog, GetParam().id);
  ASSERT_TRUE(control);
  EXPECT_EQ(control->className, GetParam().className);
  EXPECT_EQ(control->text, GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(DialogTemplates, KnownEnglishControl, testing::ValuesIn(kKnownControls));

// Each group of pictures on the graphic page stands in one place, and the page shows one of them.
TEST(GraphicPageTemplate, PicturesOfAGroupShareTheirPlaceAndAreHidden) {
  const Dialog dialog = ReadDialog(IDD_GRAPHIC_PAGE, kEnglish);
  const auto place = [&](DWORD id) -> std::optional<std::tuple<int, int, int, int>> {
    const Control* control = FindControl(dialog, id);
    if (!control || (control->style & WS_VISIBLE)) return std::nullopt;
    return std::tuple{control->x, control->y, control->width, control->height};
  };
  ASSERT_TRUE(place(1149) && place(1161));
  for (const DWORD id : {1150, 1151, 1152, 1153}) EXPECT_EQ(place(id), place(1149)) << id;
  EXPECT_EQ(place(1162), place(1161));
}

// Both combos with a number can be typed into, the others are lists.
TEST(GraphicPageTemplate, CombosWithANumberHaveAnEdit) {
  const Dialog dialog = ReadDialog(IDD_GRAPHIC_PAGE, kEnglish);
  for (const DWORD id : {1050, 1049}) EXPECT_EQ(FindControl(dialog, id)->style & 3, DWORD{CBS_DROPDOWN}) << id;
  for (const DWORD id : {1020, 1107}) EXPECT_EQ(FindControl(dialog, id)->style & 3, DWORD{CBS_DROPDOWNLIST}) << id;
}

// What no row offers can be typed into one of these only, and the fonts stand in the order of the alphabet.
TEST(CombosOfThePages, AreListsBesideTheSizeOfAFont) {
  const auto styleOf = [](WORD dialog, DWORD id) { return FindControl(ReadDialog(dialog, kEnglish), id)->style; };
  const std::pair<WORD, DWORD> lists[] = {{145, 1038}, {145, 1469}, {145, 1030}, {190, 1239},
                                          {190, 1240}, {342, 5011}, {195, 1321}, {195, 1307}};
  for (const auto& [dialog, id] : lists) {
    EXPECT_EQ(styleOf(dialog, id) & 3, DWORD{CBS_DROPDOWNLIST}) << id;
    EXPECT_EQ((styleOf(dialog, id) & CBS_SORT) != 0, id == 1307) << id;
  }
  EXPECT_EQ(styleOf(195, 1308) & (3 | CBS_SORT), DWORD{CBS_DROPDOWN});
}

// Without a group of their own, the arrow keys would lead from a radio into the settings below it.
TEST(GraphicPageTemplate, TheRadiosAreAGroupOfTheirOwn) {
  const std::vector<Control> controls = ReadDialog(IDD_GRAPHIC_PAGE, kEnglish).controls;
  ASSERT_GT(controls.size(), 2u);
  EXPECT_EQ(controls[0].id, DWORD{IDC_GRAPHIC_BY_FILE_SIZE});
  EXPECT_TRUE(controls[0].style & WS_GROUP);
  EXPECT_EQ(controls[1].id, DWORD{IDC_GRAPHIC_USER_DEFINED});
  EXPECT_FALSE(controls[1].style & WS_GROUP);
  EXPECT_TRUE(controls[2].style & WS_GROUP);
}

// The radios of a question follow each other, and what stands behind them begins a new group.
TEST(FormatPageTemplate, TheRadiosAreGroupsOfTheirOwn) {
  const std::vector<Control> controls = ReadDialog(IDD_FORMAT_PAGE, kEnglish).controls;
  const auto groupsFrom = [&controls](DWORD id, size_t count) {
    std::vector<std::pair<DWORD, bool>> found;
    for (auto control = std::ranges::find(controls, id, &Control::id); control != controls.end() && count--; ++control)
      found.emplace_back(control->id, (control->style & WS_GROUP) != 0);
    return found;
  };
  EXPECT_EQ(groupsFrom(1267, 4),
            (std::vector<std::pair<DWORD, bool>>{{1267, true}, {1268, false}, {1269, false}, {1264, true}}));
  EXPECT_EQ(groupsFrom(1272, 3), (std::vector<std::pair<DWORD, bool>>{{1272, true}, {1273, false}, {1249, true}}));
}

// The radios are walked by number, and the arrow keys walk them as they stand.
TEST(FontsPageTemplate, TheRadiosAreAGroupOfTheirOwn) {
  const std::vector<Control> controls = ReadDialog(IDD_FONTS_PAGE, kEnglish).controls;
  ASSERT_GT(controls.size(), 4u);
  for (size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(1054 + i, controls[i].id);
    EXPECT_EQ(i == 0, (controls[i].style & WS_GROUP) != 0) << i;
  }
  EXPECT_TRUE(controls[4].style & WS_GROUP);
}

// Rows with pictures in the order of the alphabet, of which several can be selected and one clicked twice.
TEST(FontsPageTemplate, TheListsAreSortedDrawnAndSelectSeveral) {
  const Dialog dialog = ReadDialog(IDD_FONTS_PAGE, kEnglish);
  for (const DWORD id : {1032, 1053}) {
    const DWORD style = FindControl(dialog, id)->style;
    for (const DWORD bit : {LBS_OWNERDRAWFIXED, LBS_HASSTRINGS, LBS_SORT, LBS_EXTENDEDSEL, LBS_NOTIFY})
      EXPECT_TRUE(style & bit) << id << " " << std::hex << bit;
  }
}

TEST(FontsPageTemplate, TheSignsShareTheirPlaceAndAreHidden) {
  const Dialog dialog = ReadDialog(IDD_FONTS_PAGE, kEnglish);
  const Control *first = FindControl(dialog, 1161), *second = FindControl(dialog, 1162);
  ASSERT_TRUE(first && second);
  EXPECT_EQ(std::tuple(first->x, first->y, first->width, first->height),
            std::tuple(second->x, second->y, second->width, second->height));
  EXPECT_FALSE((first->style | second->style) & WS_VISIBLE);
}

// Only one of the signs shows, in one place.
TEST(FormatPageTemplate, TheSignsShareTheirPlaceAndAreHidden) {
  const Dialog dialog = ReadDialog(IDD_FORMAT_PAGE, kEnglish);
  const Control *first = FindControl(dialog, 1275), *second = FindControl(dialog, 1276);
  ASSERT_TRUE(first && second);
  EXPECT_EQ(std::tuple(first->x, first->y, first->width, first->height),
            std::tuple(second->x, second->y, second->width, second->height));
  EXPECT_FALSE((first->style | second->style) & WS_VISIBLE);
}

// The radios follow each other, and what stands behind them begins a new group.
TEST(PaperPageTemplate, TheRadiosAreAGroupOfTheirOwn) {
  const std::vector<Control> controls = ReadDialog(IDD_PAPER_PAGE, kEnglish).controls;
  const auto portrait = std::ranges::find(controls, DWORD{1001}, &Control::id);
  ASSERT_GT(controls.end() - portrait, 2);
  EXPECT_EQ(portrait[1].id, 1002u);
  EXPECT_TRUE(portrait[0].style & WS_GROUP);
  EXPECT_FALSE(portrait[1].style & WS_GROUP);
  EXPECT_TRUE(portrait[2].style & WS_GROUP);
}

TEST(DocumentInfoPageTemplate, SubjectAndKeywordsHaveSeveralLines) {
  const Dialog dialog = ReadDialog(IDD_DOCUMENT_INFO_PAGE, kEnglish);
  for (const DWORD id : {1071, 1072}) EXPECT_TRUE(FindControl(dialog, id)->style & ES_MULTILINE) << id;
  for (const DWORD id : {1070, 1073}) EXPECT_FALSE(FindControl(dialog, id)->style & ES_MULTILINE) << id;
}

// In the order of the page, which is not that of their numbers' values.
TEST(SecurityPageTemplate, TheRadiosAreAGroupOfTheirOwn) {
  const std::vector<Control> controls = ReadDialog(IDD_SECURITY_PAGE, kEnglish).controls;
  std::vector<std::pair<DWORD, bool>> found;
  for (auto control = std::ranges::find(controls, DWORD{1258}, &Control::id);
       control != controls.end() && found.size() < 4; ++control)
    found.emplace_back(control->id, (control->style & WS_GROUP) != 0);
  EXPECT_EQ(found, (std::vector<std::pair<DWORD, bool>>{
                       {1258, true}, {1259, false}, {1260, false}, {IDC_SECURITY_EDITING_LABEL, true}}));
}

// From their first moment on.
TEST(SecurityTemplates, PasswordsAreHidden) {
  for (const WORD dialog : {IDD_SECURITY_PAGE, IDD_PASSWORD_CONFIRMATION})
    for (const DWORD id : {1003, 1005, 1007})
      EXPECT_TRUE(FindControl(ReadDialog(dialog, kEnglish), id)->style & ES_PASSWORD) << dialog << " " << id;
}

TEST(PasswordConfirmationTemplate, TheMarksShareTheirPlaceAndAreHidden) {
  const Dialog dialog = ReadDialog(IDD_PASSWORD_CONFIRMATION, kEnglish);
  for (const auto& [goodId, badId] : {std::pair{1170, 1171}, {1174, 1176}, {1175, 1177}}) {
    const Control *good = FindControl(dialog, goodId), *bad = FindControl(dialog, badId);
    ASSERT_TRUE(good && bad);
    EXPECT_EQ(std::tuple(good->x, good->y, good->width, good->height),
              std::tuple(bad->x, bad->y, bad->width, bad->height));
    EXPECT_FALSE((good->style | bad->style) & WS_VISIBLE);
  }
}

// What shows below the two radios is either for all hosts or for the add-in: they share their place.
TEST(SavingPageTemplate, TheInstancesAndTheAddInShareTheirPlace) {
  const Dialog dialog = ReadDialog(IDD_SAVING_PAGE, kEnglish);
  const Control *instances = FindControl(dialog, 1077), *addIn = FindControl(dialog, 1080);
  ASSERT_TRUE(instances && addIn);
  EXPECT_EQ(std::tuple(instances->x, instances->y, instances->width, instances->height),
            std::tuple(addIn->x, addIn->y, addIn->width, addIn->height));
}

// The second list has no caption: its label is for screen readers alone.
TEST(SavingPageTemplate, TheLabelOfTheSecondListIsHidden) {
  const Dialog dialog = ReadDialog(IDD_SAVING_PAGE, kEnglish);
  const Control* label = FindControl(dialog, IDC_SAVING_LOCATION_LABEL);
  ASSERT_TRUE(label);
  EXPECT_FALSE(label->style & WS_VISIBLE);
}

TEST(SavingPageTemplate, TheRadiosAreGroupsOfTheirOwn) {
  const std::vector<Control> controls = ReadDialog(IDD_SAVING_PAGE, kEnglish).controls;
  const auto hasGroup = [&controls](DWORD id) {
    const auto control = std::ranges::find(controls, id, &Control::id);
    return control != controls.end() && (control->style & WS_GROUP);
  };
  for (const DWORD id : {1061, 1077, 1078, 1164}) EXPECT_TRUE(hasGroup(id)) << id;
  for (const DWORD id : {1076, 1079}) EXPECT_FALSE(hasGroup(id)) << id;
}

// Enter begins a new line of the message in place of pressing the sheet's OK.
TEST(MailPageTemplate, TheMessageHasLines) {
  const Dialog dialog = ReadDialog(IDD_MAIL_PAGE, kEnglish);
  const Control* note = FindControl(dialog, 1039);
  ASSERT_TRUE(note);
  EXPECT_EQ(DWORD{ES_MULTILINE | ES_WANTRETURN}, note->style & (ES_MULTILINE | ES_WANTRETURN));
}
