// An updater whose search throws. What it throws is destroyed by code of its own.
#define EXPORT extern "C" __declspec(dllexport)

namespace {

struct Reason {
  Reason() = default;
  Reason(const Reason&) {}
  ~Reason();
  volatile int destroyed = 0;
};

Reason::~Reason() { destroyed = 1; }

int theJob;

}  // namespace

EXPORT int NemUpdatorJobCreate(void** job) {
  *job = &theJob;
  return 1;
}
EXPORT int NemUpdatorJobFree(void**) { return 1; }
EXPORT int NemUpdatorJobGetPropertyW() { return 0; }
EXPORT int NemUpdatorJobSetPropertyW() { return 1; }
EXPORT int NemUpdatorJobGetLastErrorTextW() { return 0; }
EXPORT int NemUpdatorJobSearchForUpdate() { throw Reason(); }
EXPORT int NemUpdatorJobDownloadUpdate() { return 1; }
