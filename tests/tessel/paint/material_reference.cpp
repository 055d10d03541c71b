#include "tests/tessel/paint/material_reference.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "tessel/paint/alpha_bands.h"
#include "tessel/paint/gradient.h"
#include "tessel/paint/material_noise.h"
#include "tessel/paint/sample_space.h"
#include "tessel/paint/surface_outline.h"

namespace tessel::reference {
namespace {

constexpr double kPi = 3.14159265358979323846;

constexpr Color hex(uint32_t rrggbb) {
  return rgbColor(rrggbb >> 16, (rrggbb >> 8) & 0xFF, rrggbb & 0xFF);
}
double pos(double v) {
  return std::max(v, 0.0);
}
double sat(double v) {
  return std::clamp(v, 0.0, 1.0);
}
// pos(v) to the power e; a peak of height 1 at c falling off with slope w, to the power e; and
// the same peak at 0 over |v|.
double pw(double v, double e) {
  return std::pow(pos(v), e);
}
double peak(double v, double c, double w, double e) {
  return pw(1 - std::abs(v - c) * w, e);
}
double ridge(double v, double w, double e) {
  return pw(1 - std::abs(v) * w, e);
}
// A ramp from c with slope k, to the power e.
double ramp(double v, double c, double k, double e) {
  return pw((v - c) * k, e);
}
double radians(double degrees) {
  return degrees * kPi / 180.0;
}

struct Pixel {
  Color colour = 0;
  double alpha = 0;
  void add(Color c, double a) {
    if (!(a > 0)) return;
    if (!(alpha > 0)) {
      colour = c;
      alpha = a;
      return;
    }
    alpha += a;
    colour = mixColor(colour, c, a / alpha);
  }
};

void writePixel(Image& image, int32_t x, int32_t y, Color colour, double alpha) {
  const int a = int(alpha + 0.5);
  if (a <= 0) return;
  uint8_t* p = image.pixel(x, y);
  p[0] = uint8_t(blueOf(colour) * a / 255);
  p[1] = uint8_t(greenOf(colour) * a / 255);
  p[2] = uint8_t(redOf(colour) * a / 255);
  p[3] = uint8_t(a);
}

bool inside(const SurfaceStyle& style, const Rect& rect, int32_t x, int32_t y) {
  return isInsideOutline(style.shape, surfaceCoverageBitmap(style), style.alphaThreshold,
                         rect.width, rect.height, x, y);
}

int64_t scaleOf(const SurfaceStyle& s) {
  return std::max(s.materialScale, 2);
}

bool carbonDiffer(const SurfaceStyle& s, int64_t wx, int64_t wy) {
  const int64_t a = (s.materialAngle + wx + wy) / scaleOf(s);
  const int64_t b = (s.materialAngle + wx - wy) / scaleOf(s);
  return (a & 1) != (b & 1);
}

}  // namespace

Image materialOverlay(const SurfaceStyle& style, const Rect& rect) {
  Image image = Image::blank(rect.width, rect.height);
  if (image.empty()) return image;
  const SampleSpace space = sampleSpace(style, rect);
  const MaterialKind kind = style.material;
  const Color tint = style.materialTint, back = style.backlightColor;
  const Color HL = mixColor(hex(0xFFFFFF), tint, 0.28), SH = mixColor(hex(0x000000), tint, 0.10);
  const double H = style.highlightOpacity, R = style.reflectionOpacity, B = style.backlightOpacity,
               L = style.rimLight;
  const double G =
      style.grainOpacity != 0 ? style.grainOpacity : defaultGrainOpacity(style.material);
  const double angle = double(style.materialAngle);
  const uint32_t seed = style.noiseSeed;

  for (int32_t y = 0; y < rect.height; ++y) {
    for (int32_t x = 0; x < rect.width; ++x) {
      if (!inside(style, rect, x, y)) continue;
      const int64_t worldX = space.x.world(x), worldY = space.y.world(y);
      const double tx = space.x.t(x), ty = space.y.t(y);
      const double axis = gradientAxis(style.gradientDirection, tx, ty);
      const uint32_t hash = hashCell(seed ^ kOverlayGrainTag, uint32_t(worldX), uint32_t(worldY));
      const uint32_t g = hash & 0xFF;
      const double gn = g / 255.0;
      const double edge = std::min({tx, 1 - tx, ty, 1 - ty});

      Pixel px{HL, 0};
      switch (kind) {
        case MaterialKind::Glass:
        case MaterialKind::FrostedGlass:
          px.alpha = pw(1 - ty, 2.2) * H + pos(ty - 0.58) * 1.75 * R +
                     pos(1 - std::abs(tx - ty - 0.12) * 6) * R * 0.55;
          if (kind == MaterialKind::FrostedGlass) px.alpha += gn * G;
          break;
        case MaterialKind::Gloss:
        case MaterialKind::Plastic:
          px.alpha = pos(1 - std::abs(ty - 0.22) * 5.2) * H + pos(1 - ty) * 0.45 * R;
          break;
        case MaterialKind::Metal:
        case MaterialKind::BrushedMetal: {
          const bool metal = kind == MaterialKind::Metal;
          const double k = metal ? 0.22 : 0.14, m = metal ? 0.035 : 0.06;
          const double off = std::fmod(std::abs(angle), 90) / 90 * 0.08 + 0.42;
          px.alpha = pw(1 - ty, 1.65) * H * 0.08 + ridge(axis - off, 1.15, 2.4) * R * k +
                     ramp(axis, 0.78, 2.2, 1.6) * H * 0.06 + std::abs(gn - 0.5) * G * m;
          break;
        }
        case MaterialKind::Rubber:
          px.colour = SH;
          px.alpha = gn * G + (0.35 + ty * 0.35) * style.materialStrength * 0.12;
          break;
        case MaterialKind::Paper:
          px.colour = g < 127 ? SH : HL;
          px.alpha = std::abs(127.0 - g) * G / 127;
          break;
        case MaterialKind::CarbonFiber: {
          const bool differ = carbonDiffer(style, worldX, worldY);
          px.colour = differ ? SH : HL;
          px.alpha = G * (differ ? 0.72 : 0.45) + R * 0.22;
          break;
        }
        case MaterialKind::LuminousGlass:  // the cheap form
          px.colour = mixColor(tint, back, 0.72);
          px.alpha = pw(1 - edge * 13.5, 2.7) * L * 0.1 + B * peak(axis, 0.5, 1.75, 2.2) * 0.16;
          break;
        default:
          break;
      }

      const double alpha = std::clamp(style.materialStrength / 180.0 * px.alpha, 0.0, 255.0);
      writePixel(image, x, y, px.colour, alpha);
    }
  }
  return image;
}

Image spatialShading(const SurfaceStyle& style, const Rect& rect) {
  Image image = Image::blank(rect.width, rect.height);
  if (image.empty()) return image;
  const int32_t w = rect.width, h = rect.height;
  const double d = style.materialDepth / 255.0;
  const double rough = style.roughness / 255.0, spec = style.specular / 255.0,
               ao = style.ambientOcclusion / 255.0, wear = style.edgeWear / 255.0;
  const double weight = std::clamp(d * 0.96 + ao * 0.54 + wear * 0.5 + spec * 0.28, 0.0, 1.75);
  const double intensity = std::max<int>(style.materialStrength, 64) / 255.0 * weight;
  if (intensity < 0.16) return image;
  const double az = radians(double(style.materialLightAngle));
  const double el = radians(double(std::clamp<int>(style.materialLightElevation, 1, 89)));
  const double Lx = std::cos(az), Ly = std::sin(az), Lz = std::sin(el);
  const Color tint = style.materialTint, back = style.backlightColor;
  // The kinds whose light, shadow base or shadow strength differ from the usual.
  const struct {
    MaterialKind kind;
    Color light, shadowBase;
    double t;
  } kTones[] = {
      {MaterialKind::Paper, mixColor(style.fill, hex(0xFFFFFF), 0.10), tint, 0.08},
      {MaterialKind::ObsidianGlass, mixColor(tint, hex(0x38363C), 0.22), tint, 0.08},
      {MaterialKind::ObsidianRelief, mixColor(tint, hex(0x38363C), 0.22), tint, 0.08},
      {MaterialKind::CarmineGloss, mixColor(tint, hex(0xFF2A3A), 0.26), hex(0x54000A), 0.34},
      {MaterialKind::AmberGlass, mixColor(tint, hex(0xFFA800), 0.32), hex(0x5C1C00), 0.30},
      {MaterialKind::LuminousGlass, mixColor(back, tint, 0.38), back, 0.10},
      {MaterialKind::LayeredGlass, mixColor(tint, hex(0xBCF4FF), 0.20), tint, 0.08},
      {MaterialKind::Gemstone, mixColor(tint, hex(0xE8FFF4), 0.16), tint, 0.12},
      {MaterialKind::Granite, mixColor(tint, hex(0xEEE8D6), 0.14), tint, 0.16},
      {MaterialKind::Marble, mixColor(tint, hex(0xFFF6E0), 0.22), tint, 0.16},
  };
  Color light = mixColor(tint, hex(0xFFFFFF), 0.14), shadowBase = tint;
  double t = 0.08;
  for (const auto& tone : kTones)
    if (tone.kind == style.material) light = tone.light, shadowBase = tone.shadowBase, t = tone.t;
  const Color rimColour = mixColor(light, tint, 0.36);
  const Color dark = mixColor(hex(0x000000), shadowBase, t);
  const double aspect = double(w) / h;
  const double R1 = std::clamp(d * 18 + 3, 4.0, 24.0);
  const double R2 = std::clamp(d * 10 + 2, 3.0, 16.0);
  const int reach = std::clamp(int(std::lround(R1 * 1.45)), 4, 24);
  const double wide = sat((128.0 - h) / 92) * sat((aspect - 1.45) / 3);
  const double tall = sat((128.0 - w) / 92) * sat((1 / aspect - 1.45) / 3);
  const double thin = std::max(wide, tall);
  const bool acrossHeight = wide >= tall;
  const double specWidth = std::clamp(rough * 0.18 + 0.035, 0.035, 0.2);
  const MaterialKind k = style.material;
  const bool extraLayers = k == MaterialKind::CarmineGloss || k == MaterialKind::AmberGlass ||
                           k == MaterialKind::LayeredGlass || k == MaterialKind::Gemstone ||
                           k == MaterialKind::ObsidianRelief || k == MaterialKind::Granite ||
                           k == MaterialKind::Marble;
  const auto count = [&](int32_t x, int32_t y, int dx, int dy) {
    for (int step = 1; step <= reach; ++step)
      if (!inside(style, rect, x + dx * step, y + dy * step)) return double(step);
    return double(reach + 1);
  };
  constexpr double kDiagonal = 0.7071067811865476;
  for (int32_t y = 0; y < h; ++y) {
    for (int32_t x = 0; x < w; ++x) {
      if (!inside(style, rect, x, y)) continue;
      const int32_t left = x, right = w - 1 - x, top = y, bottom = h - 1 - y;
      const double dL = count(x, y, -1, 0), dR = count(x, y, 1, 0), dT = count(x, y, 0, -1),
                   dB = count(x, y, 0, 1), dTL = count(x, y, -1, -1) * kDiagonal,
                   dTR = count(x, y, 1, -1) * kDiagonal, dBL = count(x, y, -1, 1) * kDiagonal,
                   dBR = count(x, y, 1, 1) * kDiagonal;
      const double tx = double(left) / (w - 1), ty = double(top) / (h - 1);
      const double gx = (dL - dR) / std::max(dL + dR, 1.0);
      const double gy = (dT - dB) / std::max(dT + dB, 1.0);
      const double e0 = std::min({dL, dR, dT, dB, dTL, dTR, dBL, dBR});
      const double e1 = std::min({e0, double(left), double(right), double(top), double(bottom)});
      const double n = std::sqrt(gx * gx + gy * gy);
      double shadeTerm = 0, litTerm = 0;
      if (n > 0.001) {
        const double dot = (gx * Lx + gy * Ly) / n;
        shadeTerm = pw(0.12 - dot, 1.65);
        litTerm = pw(dot + 0.1, 1.45);
      }
      const double rimA = pw(1 - e0 / (R2 * 1.24), 1.25);
      const double rimB = pw(1 - e1 / R1, 1.65);
      const double rimC = pw(1 - e1 / R2, 1.15);
      const double fTop = pw(1 - top / R1, 1.35);
      const double fLeft = pw(1 - left / R1, 1.35);
      const double fBottom = pw(1 - bottom / R1, 1.25);
      const double fRight = pw(1 - right / R1, 1.25);
      const double dome = pw(
          1 - std::sqrt((tx - 0.5) * (tx - 0.5) + (ty - 0.5) * (ty - 0.5)) * 1.62, d * 0.7 + 1.18);
      const double lightDot = Lx * (tx - 0.5) + Ly * (ty - 0.5);
      const double towards = pw(0.18 - lightDot, 1.45);
      const double away = pw(lightDot + 0.1, 1.3);
      const double lower = ramp(ty, 0.48, 1.92, 1.45);
      const double upper = pw(1 - ty, 2.2);

      Pixel px{dark, 0};
      px.add(dark, (fRight * 24 + fBottom * 34 + lower * 18 + away * 18) * ao * intensity);
      px.add(dark, ao * rimB * (d * 34 + 18) * intensity);
      px.add(light, (fLeft * 28 + fTop * 38 + upper * 7 + towards * 15) * (spec * 0.88 + 0.42) *
                        intensity);
      px.add(rimColour, ((wear * 64 + 20) * rimC + dome * 7) * (spec * 0.58 + 0.34) * intensity);
      px.add(dark, (ao * 74 + 34) * rimA * litTerm * intensity);
      px.add(light, (spec * 88 + 30) * rimA * shadeTerm * intensity);
      px.add(rimColour, rimA * wear * (spec * 54 + 18) * intensity);
      if (thin > 0) {
        const double u = acrossHeight ? ty : tx;
        const double l = acrossHeight ? Ly : Lx;
        const double s = 2 * u - 1;
        const double lam = std::sqrt(pos(1 - s * s)) * Lz + l * s;
        const double litBand = std::pow(sat((lam - 0.08) / 0.92), 1.65);
        const double darkBand = std::pow(sat((0.52 - lam) / 0.92), 1.35);
        const double tubeLower = ramp(u, 0.58, 2.38, 1.55);
        const double q = (u - std::clamp(0.3 - l * 0.12, 0.16, 0.48)) / specWidth;
        const double peak = std::exp(-(q * q));
        const double tk = (d * 0.64 + 0.68) * thin;
        px.add(dark, (tubeLower * 46 + darkBand * 42) * ao * tk * intensity);
        px.add(light,
               ((spec * 98 + 30) * peak + litBand * 30) * (spec * 0.74 + 0.44) * tk * intensity);
        px.add(rimColour, peak * wear * (spec * 52 + 18) * tk * intensity);
      }
      if (extraLayers) {
        px.add(dark, pw(1 - e1 / (R1 * 1.75), 2.45) * ao * d * 34 * intensity);
        px.add(rimColour, rimB * wear * spec * 52 * intensity);
      }
      writePixel(image, x, y, px.colour, std::clamp(px.alpha, 0.0, 190.0));
    }
  }
  return image;
}

Image noiseLayer(const SurfaceStyle& style, const Rect& rect) {
  Image image = Image::blank(rect.width, rect.height);
  if (image.empty()) return image;
  const SampleSpace space = sampleSpace(style, rect);
  for (int32_t y = 0; y < rect.height; ++y) {
    for (int32_t x = 0; x < rect.width; ++x) {
      if (!inside(style, rect, x, y)) continue;
      const uint32_t g =
          hashCell(style.noiseSeed, uint32_t(space.x.world(x)), uint32_t(space.y.world(y))) & 0xFF;
      writePixel(image, x, y, style.noise, double(g * style.noiseOpacity / 255));
    }
  }
  return image;
}

}  // namespace tessel::reference
