#include "pages/InvoiceFiles.h"

#include <gtest/gtest.h>

TEST(InvoiceFiles, AnXmlFileHasItsExtensionBehindTheLastPoint) {
  for (const wchar_t* path : {L"a.xml", L"A.XML", L"C:\\b.pdf\\c d.Xml", L".xml", L"a.txt.xml"})
    EXPECT_TRUE(IsXmlFilename(path)) << testing::PrintToString(path);
  for (const wchar_t* path :
       {L"", L"xml", L"a.xml.txt", L"a.xml ", L"a.xm", L"a.xmll", L"a.", L"C:\\b.xml\\c", L"a.\u0445ml", L"a.xm\u0139"})
    EXPECT_FALSE(IsXmlFilename(path)) << testing::PrintToString(path);
}

TEST(InvoiceFiles, TheManualLiesInTheInstallFolderAndHasEachBackslashTwice) {
  EXPECT_EQ(MarkedContentManual(L"C:\\Program Files\\NEM\\"), L"C:\\\\Program Files\\\\NEM\\\\NEMtagwell.pdf");
  EXPECT_EQ(MarkedContentManual(L"\\"), L"\\\\NEMtagwell.pdf");
  EXPECT_EQ(MarkedContentManual(L""), L"NEMtagwell.pdf");
}
