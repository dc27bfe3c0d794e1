#include "driver/Picture.h"

#include <wincodec.h>

#include <algorithm>
#include <set>

namespace {

// Owns one reference to a COM object.
template <typename Interface>
class Com {
 public:
  Com() = default;
  ~Com() {
    if (object_) object_->Release();
  }
  Com(const Com&) = delete;
  Com& operator=(const Com&) = delete;

  Interface** Receive() { return &object_; }
  Interface* operator->() const { return object_; }
  Interface* Get() const { return object_; }

 private:
  Interface* object_ = nullptr;
};

// The identifiers stand here because the import libraries of compilers differ in which of them they have.
constexpr GUID kImagingFactory = {0xcacaf262, 0x9370, 0x4615, {0xa1, 0x3b, 0x9f, 0x55, 0x39, 0xda, 0x4c, 0x0a}};
constexpr GUID kImagingFactoryInterface = {
    0xec5ec8a9, 0xc395, 0x4314, {0x9c, 0x77, 0x54, 0xd7, 0xa9, 0x35, 0xff, 0x70}};
constexpr GUID kPng = {0x1b7cfaf4, 0x713f, 0x473c, {0xbb, 0xcd, 0x61, 0x37, 0x42, 0x5f, 0xae, 0xaf}};
constexpr GUID kBgra32 = {0x6fddc324, 0x4e03, 0x4bfe, {0xb1, 0x85, 0x3d, 0x77, 0x76, 0x8d, 0xc9, 0x0f}};

HRESULT WritePng(const Picture& picture, const std::wstring& path) {
  Com<IWICImagingFactory> factory;
  Com<IWICStream> stream;
  Com<IWICBitmapEncoder> encoder;
  Com<IWICBitmapFrameEncode> frame;
  WICPixelFormatGUID format = kBgra32;
  const auto stride = static_cast<UINT>(picture.width) * sizeof(uint32_t);
  auto* const bytes = reinterpret_cast<BYTE*>(const_cast<uint32_t*>(picture.pixels.data()));

  HRESULT result = CoCreateInstance(kImagingFactory, nullptr, CLSCTX_INPROC_SERVER, kImagingFactoryInterface,
                                    reinterpret_cast<void**>(factory.Receive()));
  if (SUCCEEDED(result)) result = factory->CreateStream(stream.Receive());
  if (SUCCEEDED(result)) result = stream->InitializeFromFilename(path.c_str(), GENERIC_WRITE);
  if (SUCCEEDED(result)) result = factory->CreateEncoder(kPng, nullptr, encoder.Receive());
  if (SUCCEEDED(result)) result = encoder->Initialize(stream.Get(), WICBitmapEncoderNoCache);
  if (SUCCEEDED(result)) result = encoder->CreateNewFrame(frame.Receive(), nullptr);
  if (SUCCEEDED(result)) result = frame->Initialize(nullptr);
  if (SUCCEEDED(result)) result = frame->SetSize(picture.width, picture.height);
  if (SUCCEEDED(result)) result = frame->SetPixelFormat(&format);
  if (SUCCEEDED(result)) result = frame->WritePixels(picture.height, stride, stride * picture.height, bytes);
  if (SUCCEEDED(result)) result = frame->Commit();
  if (SUCCEEDED(result)) result = encoder->Commit();
  return result;
}

}  // namespace

int Picture::ColourCount(int limit) const {
  std::set<uint32_t> colours;
  for (uint32_t pixel : pixels)
    if (colours.insert(pixel).second && static_cast<int>(colours.size()) >= limit) break;
  return static_cast<int>(colours.size());
}

// The window's own surface: PrintWindow and WM_PRINT leave out the frame or the owner-drawn parts on some platforms.
Picture Capture(HWND window) {
  RECT bounds = {};
  GetWindowRect(window, &bounds);
  Picture picture;
  picture.width = bounds.right - bounds.left;
  picture.height = bounds.bottom - bounds.top;
  if (picture.width <= 0 || picture.height <= 0) return {};

  BITMAPINFO info = {};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = picture.width;
  info.bmiHeader.biHeight = -picture.height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  const HDC memory = CreateCompatibleDC(nullptr);
  const HBITMAP bitmap = CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  const HGDIOBJ previous = SelectObject(memory, bitmap);

  const HDC source = GetWindowDC(window);
  SetLayout(source, 0);  // a mirrored window would come out mirrored a second time
  const bool copied = bits && BitBlt(memory, 0, 0, picture.width, picture.height, source, 0, 0, SRCCOPY);
  ReleaseDC(window, source);
  GdiFlush();
  if (copied) {
    const auto* first = static_cast<const uint32_t*>(bits);
    picture.pixels.assign(first, first + static_cast<size_t>(picture.width) * picture.height);
    for (uint32_t& pixel : picture.pixels) pixel |= 0xFF000000;
  }

  SelectObject(memory, previous);
  DeleteObject(bitmap);
  DeleteDC(memory);
  return copied ? picture : Picture();
}

Picture Cut(const Picture& picture, const RECT& part) {
  const int left = std::max<int>(part.left, 0), right = std::min<int>(part.right, picture.width);
  const int top = std::max<int>(part.top, 0), bottom = std::min<int>(part.bottom, picture.height);
  if (left >= right || top >= bottom) return {};
  Picture result;
  result.width = right - left;
  result.height = bottom - top;
  for (int y = top; y < bottom; ++y) {
    const auto row = picture.pixels.begin() + static_cast<ptrdiff_t>(y) * picture.width;
    result.pixels.insert(result.pixels.end(), row + left, row + right);
  }
  return result;
}

bool SavePng(const Picture& picture, const std::wstring& path, HRESULT* error) {
  if (picture.IsEmpty()) {
    if (error) *error = E_INVALIDARG;
    return false;
  }
  const HRESULT initialized = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  const HRESULT result = WritePng(picture, path);
  if (SUCCEEDED(initialized)) CoUninitialize();
  if (error) *error = result;
  return SUCCEEDED(result);
}
