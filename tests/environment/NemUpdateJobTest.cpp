// The binding of the updater, on updaters made for the tests (tests/components).
#include <windows.h>

#include "environment/NemUpdateJob.h"

#include <gtest/gtest.h>

#include <string>

#include "support/LoadedUpdator.h"
#include "support/PrintText.h"

namespace {

constexpr wchar_t kFile[] = L"NemUpdator64.dll";

bool Load(NemUpdateJob& job, const std::wstring& kind) { return job.Load(1, ComponentFolder(kind).c_str(), kFile); }

}  // namespace

TEST(NemUpdateJob, FreesItsJobBeforeTheComponent) {
  LoadedUpdator updator(L"newer");
  {
    NemUpdateJob job;
    ASSERT_TRUE(Load(job, L"newer"));
    EXPECT_EQ(1, updator.OpenJobs());
  }
  EXPECT_EQ("NemUpdatorJobFree(,)\n", updator.TakeCalls());
  EXPECT_EQ(0, updator.OpenJobs());
}

TEST(NemUpdateJob, IsUnloadedAtItsEnd) {
  {
    NemUpdateJob job;
    ASSERT_TRUE(Load(job, L"newer"));
    EXPECT_NE(nullptr, GetModuleHandleW(kFile));
  }
  EXPECT_EQ(nullptr, GetModuleHandleW(kFile));
}

TEST(NemUpdateJob, HasAUsualFileAndAddsNoSeparator) {
  NemUpdateJob job;
  EXPECT_TRUE(job.Load(1, ComponentFolder(L"newer").c_str(), nullptr));
  NemUpdateJob withoutSeparator;
  const std::wstring folder = ComponentFolder(L"newer");
  EXPECT_FALSE(withoutSeparator.Load(1, folder.substr(0, folder.size() - 1).c_str(), kFile));
}

TEST(NemUpdateJob, IsNotLookedForWithoutADirectory) {
  ASSERT_TRUE(SetDllDirectoryW(ComponentFolder(L"newer").c_str()));
  for (const wchar_t* directory : {static_cast<const wchar_t*>(nullptr), L""}) {
    NemUpdateJob job;
    EXPECT_FALSE(job.Load(1, directory, kFile));
    EXPECT_FALSE(job.IsLoaded());
    EXPECT_EQ(static_cast<DWORD>(ERROR_PATH_NOT_FOUND), job.lastError);
  }
  SetDllDirectoryW(nullptr);
}

TEST(NemUpdateJob, LoadsOnce) {
  LoadedUpdator updator(L"newer");
  NemUpdateJob job;
  ASSERT_TRUE(Load(job, L"newer"));
  EXPECT_TRUE(Load(job, L"createfails")) << "stays with its file";
  EXPECT_EQ(1, updator.OpenJobs()) << "and with its job";
}

TEST(NemUpdateJob, DoesNotLoadWithoutFileExportOrJob) {
  for (const wchar_t* kind : {L"none", L"lacking", L"createfails", L"nohandle"}) {
    NemUpdateJob job;
    EXPECT_FALSE(Load(job, kind)) << testing::PrintToString(kind);
    EXPECT_FALSE(job.SetProperty(L"product", L"x"));
    EXPECT_FALSE(job.SearchForUpdate(1));
    EXPECT_FALSE(job.DownloadUpdate(1));
    EXPECT_TRUE(job.GetLastErrorText().IsEmpty());
    CUString value(L"old");
    EXPECT_FALSE(job.GetProperty(L"newversion", value));
    EXPECT_EQ(L"old", value);
  }
}

TEST(NemUpdateJob, PassesPropertiesOnAsText) {
  LoadedUpdator updator(L"newer");
  NemUpdateJob job;
  ASSERT_TRUE(Load(job, L"newer"));
  EXPECT_TRUE(job.SetProperty(L"product", L"NEM pdf vonder"));
  EXPECT_TRUE(job.SetLongProperty(L"language", 1033));
  EXPECT_TRUE(job.SetLongProperty(L"least", INT32_MIN));
  EXPECT_EQ(
      "NemUpdatorJobSetPropertyW(job,product=NEM pdf vonder)\n"
      "NemUpdatorJobSetPropertyW(job,language=1033)\n"
      "NemUpdatorJobSetPropertyW(job,least=-2147483648)\n",
      updator.TakeCalls());
}

TEST(NemUpdateJob, ReadsAProperty) {
  NemUpdateJob job;
  ASSERT_TRUE(Load(job, L"newer"));
  CUString value(L"old");
  EXPECT_TRUE(job.GetProperty(L"newversion", value));
  EXPECT_EQ(L"2.11.0", value);
  EXPECT_FALSE(job.GetProperty(L"missing", value));
  EXPECT_EQ(L"2.11.0", value);
}

TEST(NemUpdateJob, CutsATextThatIsTooLong) {
  NemUpdateJob job;
  ASSERT_TRUE(Load(job, L"newer"));
  CUString value;
  EXPECT_TRUE(job.GetProperty(L"long", value));
  EXPECT_EQ(1023, value.Length());
  NemUpdateJob wordy;
  ASSERT_TRUE(Load(wordy, L"long"));
  EXPECT_EQ(1023, wordy.GetLastErrorText().Length());
}

TEST(NemUpdateJob, SearchesAndDownloads) {
  LoadedUpdator updator(L"newer");
  NemUpdateJob job;
  ASSERT_TRUE(Load(job, L"newer"));
  EXPECT_TRUE(job.SearchForUpdate(1));
  EXPECT_FALSE(job.DownloadUpdate(1));
  EXPECT_EQ("NemUpdatorJobSearchForUpdate(job,1)\nNemUpdatorJobDownloadUpdate(job,1)\n", updator.TakeCalls());
}

TEST(NemUpdateJob, TellsWhyItFailed) {
  NemUpdateJob failing, silent;
  ASSERT_TRUE(Load(failing, L"failing"));
  EXPECT_FALSE(failing.SearchForUpdate(1));
  EXPECT_EQ(L"no road to the server", failing.GetLastErrorText());
  ASSERT_TRUE(Load(silent, L"silent"));
  EXPECT_FALSE(silent.SearchForUpdate(1));
  EXPECT_TRUE(silent.GetLastErrorText().IsEmpty()) << "what a failed question leaves in the buffer is nothing";
}
