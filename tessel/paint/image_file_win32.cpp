// The Windows build's image loader: the Windows Imaging Component decodes the first frame and
// converts it to premultiplied BGRA, the layout of Image, so the bytes are copied as they come.
#include <windows.h>
#include <objbase.h>
#include <wincodec.h>

#include "tessel/paint/image_file.h"

namespace tessel {

namespace {

// Keeps the image's memory within what a skin can sensibly ask for.
constexpr UINT kMaxSide = 1u << 14;

template <typename T>
class ComRef {
 public:
  ComRef() = default;
  ComRef(const ComRef&) = delete;
  ComRef& operator=(const ComRef&) = delete;
  ~ComRef() {
    if (pointer_ != nullptr) pointer_->Release();
  }
  T* operator->() const { return pointer_; }
  T* get() const { return pointer_; }
  T** out() { return &pointer_; }
  void** outVoid() { return reinterpret_cast<void**>(&pointer_); }

 private:
  T* pointer_ = nullptr;
};

// COM for the length of one load. A thread that already runs COM in another apartment mode
// (RPC_E_CHANGED_MODE) can still use the in-process factory, and must not be uninitialised.
class ComScope {
 public:
  ComScope() : initialized_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
  ComScope(const ComScope&) = delete;
  ComScope& operator=(const ComScope&) = delete;
  ~ComScope() {
    if (initialized_) CoUninitialize();
  }

 private:
  bool initialized_;
};

bool decode(const std::wstring& path, Image& image) {
  ComRef<IWICImagingFactory> factory;
  if (FAILED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                              IID_IWICImagingFactory, factory.outVoid()))) {
    return false;
  }
  ComRef<IWICBitmapDecoder> decoder;
  if (FAILED(factory->CreateDecoderFromFilename(path.c_str(), nullptr, GENERIC_READ,
                                                WICDecodeMetadataCacheOnDemand, decoder.out()))) {
    return false;
  }
  ComRef<IWICBitmapFrameDecode> frame;
  if (FAILED(decoder->GetFrame(0, frame.out()))) return false;
  ComRef<IWICFormatConverter> converter;
  if (FAILED(factory->CreateFormatConverter(converter.out()))) return false;
  if (FAILED(converter->Initialize(frame.get(), GUID_WICPixelFormat32bppPBGRA,
                                   WICBitmapDitherTypeNone, nullptr, 0.0,
                                   WICBitmapPaletteTypeCustom))) {
    return false;
  }
  UINT width = 0, height = 0;
  if (FAILED(converter->GetSize(&width, &height)) || width < 1 || height < 1 || width > kMaxSide ||
      height > kMaxSide) {
    return false;
  }
  Image decoded = Image::blank(int32_t(width), int32_t(height));
  if (FAILED(converter->CopyPixels(nullptr, width * 4, UINT(decoded.pixels->size()),
                                   decoded.pixels->data()))) {
    return false;
  }
  image = decoded;
  return true;
}

}  // namespace

bool loadImageFile(const std::wstring& path, Image& image) {
  image = Image{};
  if (path.empty()) return false;
  ComScope com;
  return decode(path, image);
}

}  // namespace tessel
