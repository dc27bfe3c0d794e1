#include "window/SystemMetrics.h"

#include "window/SystemFunction.h"

// The functions that know of dpi are there since Windows 10. Before, all windows share the system's dpi.

int SystemMetric(int index, int dpi) {
  using Function = int WINAPI(int, UINT);
  static const auto metricForDpi = SystemFunction<Function>(L"user32.dll", "GetSystemMetricsForDpi");
  return metricForDpi ? metricForDpi(index, static_cast<UINT>(dpi)) : ::GetSystemMetrics(index);
}

GdiFont MessageFont(int dpi) {
  using Function = BOOL WINAPI(UINT, UINT, void*, UINT, UINT);
  static const auto parametersForDpi = SystemFunction<Function>(L"user32.dll", "SystemParametersInfoForDpi");
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  const BOOL known =
      parametersForDpi ? parametersForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, static_cast<UINT>(dpi))
                       : ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  return known ? GdiFont(::CreateFontIndirectW(&metrics.lfMessageFont)) : DeriveFont(nullptr, [](LOGFONTW&) {});
}
