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

double facet(const SurfaceStyle& s, double wx, double wy) {
  const double sc = double(scaleOf(s));
  const double facetA =
      std::abs(std::fmod((wx * 0.036 + wy * 0.021) * std::max(sc * 0.045, 0.5), 1) - 0.5);
  const double facetB =
      std::abs(std::fmod((wy * 0.052 - wx * 0.018) * std::max(sc * 0.038, 0.5), 1) - 0.5);
  return std::pow(1 - sat(std::min(facetA, facetB) * 3.6), 2.4);
}

// The relief's height at pixel (x, y) of the rectangle, world position (wx, wy) and normalized
// sample position (tx, ty).
double height(const SurfaceStyle& s, double x, double y, int64_t wx, int64_t wy, double tx,
              double ty) {
  const int64_t angle = s.materialAngle, scale = scaleOf(s);
  const uint32_t seed = s.noiseSeed;
  const double u = sat(tx);
  const double v = sat(ty);
  const double dome = pw(1 - std::sqrt((u - 0.5) * (u - 0.5) + (v - 0.5) * (v - 0.5)) * 1.82, 1.55);
  const double a = radians(double(angle));
  const double p = (std::cos(a) * x + std::sin(a) * y) / double(scale);
  const double stripe = std::sin(p * 2 * kPi) * 0.5 + 0.5;
  const uint32_t hash = hashCell(seed ^ kReliefTag, uint32_t(wx), uint32_t(wy));
  const double h1 = (hash & 0xFF) / 255.0;
  const double h2 = ((hash >> 8) & 0xFF) / 255.0;
  const double axis = gradientAxis(s.gradientDirection, tx, ty);
  const double sc = double(scale);
  double h = 0;
  switch (s.material) {
    case MaterialKind::Glass:
    case MaterialKind::FrostedGlass:
      h = dome * 0.68 + stripe * 0.1 + h1 * 0.1;
      break;
    case MaterialKind::Gloss:
    case MaterialKind::Plastic:
      h = pos(1 - std::abs(v - 0.28) * 4.8) * 0.24 + dome * 0.56 + h1 * 0.08;
      break;
    case MaterialKind::Metal:
    case MaterialKind::BrushedMetal:
      h = dome * 0.22 + stripe * 0.4 + std::abs(h1 - 0.5) * 0.2;
      break;
    case MaterialKind::Rubber:
      h = h1 * 0.34 + dome * 0.25 + h2 * 0.1;
      break;
    case MaterialKind::Paper:
      h = h1 * 0.26 + dome * 0.12 + h2 * 0.16;
      break;
    case MaterialKind::CarbonFiber:
      h = dome * 0.16 + (carbonDiffer(s, wx, wy) ? 0.28 : 0.68) + h1 * 0.06;
      break;
    case MaterialKind::ObsidianGlass:
      h = peak(axis, 0.52, 2.2, 2.8) * 0.22 + dome * 0.58 + h1 * 0.05;
      break;
    case MaterialKind::CarmineGloss:
      h = peak(stripe, 0.52, 2.2, 2.4) * 0.32 + dome * 0.42 + h2 * 0.1;
      break;
    case MaterialKind::AmberGlass:
      h = peak(axis, 0.52, 1.55, 2) * 0.18 +
          ridge(std::sin(p * 0.62 + axis * 5.2), 1.45, 4.2) * 0.32 + dome * 0.44 + h1 * 0.06;
      break;
    case MaterialKind::LuminousGlass: {
      const double b = radians(double(s.lightBlobAngle));
      h = ridge(std::cos(b) * (u - 0.5) + std::sin(b) * (v - 0.5), 2.1, 2.6) * 0.42 + dome * 0.34 +
          stripe * 0.08 + h1 * 0.04;
      break;
    }
    case MaterialKind::LayeredGlass:
      h = fractalNoise(u + 0.17, v - 0.11, 4.2, seed ^ kStrataTag) * 0.22 + dome * 0.46 +
          peak(axis, 0.5, 1.7, 2.4) * 0.24 + h1 * 0.08;
      break;
    case MaterialKind::Gemstone:
      h = facet(s, double(wx), double(wy)) * 0.44 + dome * 0.34 + h1 * 0.08;
      break;
    case MaterialKind::ObsidianRelief: {
      const double f = fractalNoise(u, v, 5.8, seed ^ kFractureTag);
      h = ridge(std::sin(p * 0.38 + f * 5.8), 1.86, 4.8) * 0.36 + dome * 0.28 + f * 0.24 +
          h1 * 0.08;
      break;
    }
    case MaterialKind::Granite:
      h = fractalNoise(x, y, 1 / std::max(sc * 0.52, 3.0), seed ^ kGraniteATag) * 0.54 +
          dome * 0.18 + peak(stripe, 0.5, 2.6, 2.7) * 0.16 + h1 * 0.12;
      break;
    case MaterialKind::Marble: {
      const double m = fractalNoise(u, v, 3.4, seed ^ kMarbleVeinsTag);
      h = ridge(std::sin((m * 0.36 + axis) * 15), 1.36, 5.2) * 0.42 + m * 0.28 + dome * 0.22 +
          h1 * 0.06;
      break;
    }
    default:
      break;
  }
  return sat(h);
}

// The colours of the relief's light and of its lip.
std::pair<Color, Color> reliefColours(const SurfaceStyle& s) {
  const Color t = s.materialTint, back = s.backlightColor;
  switch (s.material) {
    case MaterialKind::ObsidianGlass:
      return {mixColor(hex(0x1C1C20), t, 0.48), mixColor(hex(0x16161A), t, 0.45)};
    case MaterialKind::CarmineGloss:
      return {mixColor(hex(0xFF4852), t, 0.60), mixColor(hex(0xFFFFFF), t, 0.28)};
    case MaterialKind::AmberGlass:
      return {mixColor(hex(0xFFBF16), t, 0.34), mixColor(hex(0xFFB200), t, 0.36)};
    case MaterialKind::LuminousGlass:
      return {mixColor(back, t, 0.38), mixColor(back, hex(0xFFE2BE), 0.12)};
    case MaterialKind::Granite:
      return {mixColor(hex(0xD2CBBA), t, 0.44), mixColor(hex(0xE6DCC6), t, 0.38)};
    case MaterialKind::Marble:
      return {mixColor(hex(0xFFF4DC), t, 0.34), mixColor(hex(0xE6DCC6), t, 0.38)};
    default:
      return {mixColor(hex(0xFFFFFF), t, 0.28), mixColor(hex(0xFFFFFF), t, 0.28)};
  }
}

}  // namespace

Image materialOverlay(const SurfaceStyle& style, const Rect& rect, uint8_t effectiveDepth,
                      bool cheap, double phase) {
  Image image = Image::blank(rect.width, rect.height);
  if (image.empty()) return image;
  const SampleSpace space = sampleSpace(style, rect);
  const MaterialKind kind = style.material;
  const Color tint = style.materialTint, back = style.backlightColor;
  const Color HL = mixColor(hex(0xFFFFFF), tint, 0.28), SH = mixColor(hex(0x000000), tint, 0.10);
  const double H = style.highlightOpacity, R = style.reflectionOpacity, B = style.backlightOpacity,
               I = style.innerGlow, L = style.rimLight;
  const double G =
      style.grainOpacity != 0 ? style.grainOpacity : defaultGrainOpacity(style.material);
  const double rough = style.roughness / 255.0, spec = style.specular / 255.0,
               ao = style.ambientOcclusion / 255.0, wear = style.edgeWear / 255.0,
               tex = style.textureOpacity / 255.0;
  const double angle = double(style.materialAngle), scale = double(scaleOf(style));
  const uint32_t seed = style.noiseSeed;
  const double d = effectiveDepth / 255.0;

  for (int32_t y = 0; y < rect.height; ++y) {
    for (int32_t x = 0; x < rect.width; ++x) {
      if (!inside(style, rect, x, y)) continue;
      const int64_t worldX = space.x.world(x), worldY = space.y.world(y);
      const double wx = double(worldX), wy = double(worldY);
      const double tx = space.x.t(x), ty = space.y.t(y);
      const double axis = gradientAxis(style.gradientDirection, tx, ty);
      const uint32_t hash = hashCell(seed ^ kOverlayGrainTag, uint32_t(worldX), uint32_t(worldY));
      const uint32_t g = hash & 0xFF;
      const uint32_t g2 = (hash >> 8) & 0xFF;
      const double gn = g / 255.0;
      const double side = std::max(tx, 1 - tx);
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
        case MaterialKind::ObsidianGlass:
          px.colour = mixColor(hex(0x030304), tint, 0.42);
          px.alpha = peak(axis, 0.52, 2.4, 3.6) * R * 0.12 + ramp(side, 0.72, 3.58, 2) * R * 0.22 +
                     pw(1 - ty, 2.8) * H * 0.10 + ramp(ty, 0.62, 2.65, 2) * R * 0.10;
          break;
        case MaterialKind::CarmineGloss:
          px.colour = mixColor(hex(0x180002), tint, 0.78);
          px.alpha =
              peak(ty, 0.3, 4, 2.2) * H * 0.16 + ramp(side, 0.7, 3.34, 1.7) * R * 0.24 +
              ramp(ty, 0.6, 2.5, 1.7) * R * 0.18 +
              pw(1 - 2 * std::abs(std::sin((angle + wx) * 0.072 + wy * 0.018)), 5) * gn * G * 0.16;
          break;
        case MaterialKind::AmberGlass: {
          const double fireCore = peak(axis, 0.52, 1.55, 2.35);
          const double honeyBody =
              peak(ty, 0.58, 1.72, 1.85) * (0.42 + pos(1 - std::abs(tx - 0.48) * 2.2) * 0.58);
          const double moltenTop =
              pw(1 - ty, 2.35) * (0.30 + pos(1 - std::abs(tx - 0.34) * 2.4) * 0.70);
          const double darkRim = ramp(side, 0.74, 3.86, 1.55);
          const double shard = ridge(std::sin((angle + wx) * 0.052 + wy * 0.027) +
                                         0.55 * std::sin(wx * 0.017 - wy * 0.071),
                                     1.58, 6);
          const double glint = std::pow(
              sat(std::exp(-((tx - 0.7) * (tx - 0.7) / 0.018 + (ty - 0.34) * (ty - 0.34) / 0.012)) *
                      0.72 +
                  std::exp(-((ty - 0.58) * (ty - 0.58) / 0.02 + (tx - 0.3) * (tx - 0.3) / 0.01))),
              2.8);
          const Color moltenGold = mixColor(hex(0xFFBA00), tint, 0.34);
          const Color resinOrange = mixColor(hex(0xFF6900), tint, 0.46);
          const Color burntEdge = mixColor(hex(0x692200), tint, 0.40);
          const Color deepHoney = mixColor(hex(0xB24000), tint, 0.48);
          if (darkRim > 0.36)
            px.colour = burntEdge;
          else if (shard > 0.30 && gn > 0.42)
            px.colour = resinOrange;
          else if (honeyBody > 0.32 || moltenTop > 0.24)
            px.colour = moltenGold;
          else
            px.colour = deepHoney;
          px.alpha = fireCore * R * 0.24 + honeyBody * R * 0.34 + moltenTop * H * 0.36 +
                     darkRim * R * 0.25 + shard * (0.38 + gn * 0.62) * G * 1.55 +
                     std::pow(pos(gn - 0.64) / 0.36, 2) * G * 0.72 + glint * tex * 36;
          if (glint > 0.12)
            px.colour = mixColor(px.colour, burntEdge, std::min(glint * 0.28, 0.42));
          break;
        }
        case MaterialKind::LuminousGlass: {
          const double motion = phase > 0 ? 1 : 0;
          const double cx = 0.30 + motion * 0.16 * std::cos(2 * kPi * phase);
          const double cy = 0.62 + motion * 0.12 * std::sin(2 * kPi * phase * 0.83 + 0.8);
          const double blobAngle = radians(double(style.lightBlobAngle));
          const double dx = tx - cx, dy = ty - cy;
          const double along = dx * std::cos(blobAngle) + dy * std::sin(blobAngle);
          const double across = dy * std::cos(blobAngle) - dx * std::sin(blobAngle);
          const double ratio =
              std::max(style.lightBlobScale, 24) / std::max({space.x.extent, space.y.extent, 64.0});
          const double s1 = std::clamp(ratio * 0.62, 0.26, 1.25);
          const double s2 = std::clamp(ratio * 0.24, 0.12, 0.64);
          const double blob = std::exp(-(along * along / (s1 * s1) + across * across / (s2 * s2)));
          const double lower =
              std::exp(-((ty - 0.86) * (ty - 0.86) / 0.055 + (tx - 0.72) * (tx - 0.72) / 0.2));
          const double rim = pw(1 - edge * 13.5, 2.7);
          const double field = peak(axis, 0.5, 1.75, 2.2);
          const Color inner = mixColor(tint, back, 0.72);
          const Color rimColour = mixColor(back, hex(0xFFE2BE), 0.16);
          if (cheap) {
            px.colour = inner;
            px.alpha = rim * L * 0.1 + B * field * 0.16;
          } else {
            px.colour = mixColor(hex(0x050508), back, 0.36);
            px.add(back, blob * B * 0.7);
            px.add(inner, lower * I * 0.54);
            px.add(inner, field * I * 0.12);
            px.add(rimColour, rim * L * 0.34);
            if (G > 0) px.add(mixColor(hex(0x000000), back, 0.34), std::abs(gn - 0.5) * G * 0.08);
          }
          break;
        }
        case MaterialKind::LayeredGlass: {
          const double strata = fractalNoise(tx, ty, 4.2, seed ^ kStrataTag);
          const double micro =
              fractalNoise(wx, wy, 1 / std::max(scale * 0.62, 3.0), seed ^ kMicroTag);
          px.colour = mixColor(mixColor(hex(0x050608), tint, 0.44), back, 0.18 + strata * 0.24);
          px.alpha =
              ridge(std::sin((axis + strata * 0.16) * 9.4), 1.16, 3.2) * tex * 86 +
              pw(1 - ty, 2) * H * (0.30 + spec * 0.72) + ramp(ty, 0.56, 2.27, 2) * R * 0.34 +
              ramp(side, 0.68, 3.12, 1.8) * L * (0.18 + wear * 0.38) +
              std::abs(micro - 0.5) * tex * (30 + rough * 46) +
              std::exp(-((tx - 0.66) * (tx - 0.66) / 0.014 + (ty - 0.42) * (ty - 0.42) / 0.018)) *
                  tex * 28;
          break;
        }
        case MaterialKind::Gemstone: {
          const double f = facet(style, wx, wy);
          const double prism = ridge(axis - (0.44 + g2 / 255.0 * 0.18), 3, 2.2);
          const double glintNoise = fractalNoise(tx, ty, 3.2, seed ^ kGemGlintTag);
          const double rim = pw(1 - edge * 10.2, 2.1);
          px.colour = mixColor(mixColor(hex(0x010202), tint, 0.56),
                               mixColor(tint, hex(0xFFFFFF), 0.20 + spec * 0.16),
                               sat(f * 0.42 + prism * 0.26 + glintNoise * 0.06));
          px.alpha = rim * L * (0.22 + wear * 0.36) + (72 + spec * 210) * tex * f +
                     R * prism * 0.4 + tex * glintNoise * 18 + pw(1 - ty, 2.3) * H * 0.22;
          break;
        }
        case MaterialKind::ObsidianRelief: {
          const double fracture = fractalNoise(tx, ty, 5.8, seed ^ kFractureTag);
          const double vein =
              ridge(std::sin(wx * 0.041 + wy * 0.029 + fracture * 5.8 + angle), 1.86, 4.8);
          const double pit =
              std::pow(fractalNoise(wx, wy, 1 / std::max(scale, 2.0), seed ^ kPitsTag), 2.4);
          const double rim = pw(1 - edge * 11.6, 2.3);
          px.colour =
              mixColor(mixColor(hex(0x010102), tint, 0.18), mixColor(hex(0x120002), tint, 0.62),
                       sat(vein * 0.72 + fracture * 0.10));
          px.alpha = rim * L * (0.18 + wear * 0.42) + pit * tex * rough * 30 + vein * tex * 72 +
                     pw(1 - ty, 2.6) * H * 0.11;
          break;
        }
        case MaterialKind::Granite: {
          const double mineralA =
              fractalNoise(wx, wy, 1 / std::max(scale * 0.72, 4.0), seed ^ kGraniteATag);
          const double mineralB =
              fractalNoise(wx, wy, 1 / std::max(scale * 0.34, 2.0), seed ^ kGraniteBTag);
          const double feldspar = mineralA > 0.64 ? mineralB * 0.42 + 0.58 : 0;
          const double mica =
              ridge(std::fmod((wx * 0.031 - wy * 0.024) * scale * 0.035, 1) - 0.5, 3.4, 3.2);
          px.colour =
              mixColor(mixColor(hex(0x050504), tint, 0.28), mixColor(hex(0xB2AEA2), tint, 0.52),
                       sat(feldspar * 0.72 + mineralA * 0.24));
          px.alpha = std::pow(mineralB, 2.4) * tex * rough * 26 + feldspar * tex * 56 +
                     (34 + spec * 70) * mica * tex;
          if (mica > 0.22)
            px.colour = mixColor(px.colour, mixColor(hex(0xEBE6D2), tint, 0.26),
                                 std::min(mica * 0.24, 0.38));
          break;
        }
        case MaterialKind::Marble: {
          const double cloud = fractalNoise(tx, ty, 1.2, seed ^ kMarbleCloudsTag);
          const double marble = fractalNoise(tx, ty, 3.4, seed ^ kMarbleVeinsTag);
          const double vein =
              ridge(std::sin((axis + marble * 0.36) * 15 + std::sin(ty * 9) * 0.8), 1.36, 5.2);
          px.colour = mixColor(mixColor(hex(0x9E998F), tint, 0.56),
                               mixColor(hex(0xFFF6E0), tint, 0.28), cloud * 0.26);
          px.alpha = pw(1 - ty, 2.2) * H * 0.10 + (76 + rough * 36) * vein * tex + cloud * tex * 20;
          if (vein > 0.10)
            px.colour = mixColor(px.colour, mixColor(hex(0x1A1716), tint, 0.24),
                                 std::min(vein * 0.36, 0.55));
          break;
        }
        default:
          break;
      }

      // The finish.
      const auto finishNoise = [&] {
        return fractalNoise(wx, wy, 1 / std::max(scale * 0.42, 2.0), seed ^ kFinishTag);
      };
      switch (style.finish) {
        case 2: {
          const double a = radians(angle);
          px.add(HL, ridge(std::sin((wx * std::cos(a) + wy * std::sin(a)) * 0.74), 1.64, 2.4) *
                         tex * 30);
          break;
        }
        case 6: {
          const double n = finishNoise();
          px.add(SH, ridge(std::sin(wx * 0.067 + wy * 0.031 + n * 8), 1.72, 5.8) * tex *
                         (78 + ao * 88));
          break;
        }
        case 7: {
          const double h = std::pow(std::abs(finishNoise() - 0.5) * 2, 1.8);
          px.add(h > 0.52 ? HL : SH, h * tex * 46);
          break;
        }
        case 8:
          px.add(SH, ridge(std::sin((wx + wy * 0.32) * 0.42), 1.62, 4) * tex * 46);
          break;
        case 9:
          px.add(HL, std::abs(finishNoise() - 0.5) * tex * 36);
          break;
        case 10:
          px.add(HL, peak(ty, 0.26, 5, 2.4) * H * 0.36);
          break;
        default:
          break;
      }

      // The relief light.
      if (d > 0) {
        const double az = radians(double(style.materialLightAngle));
        const double el = radians(double(std::clamp<int>(style.materialLightElevation, 1, 89)));
        const double Lx = std::cos(el) * std::cos(az), Ly = std::cos(el) * std::sin(az),
                     Lz = std::sin(el);
        const double sx = space.x.step(), sy = space.y.step();
        const double hl = height(style, x - 1, y, worldX - 1, worldY, tx - sx, ty);
        const double hr = height(style, x + 1, y, worldX + 1, worldY, tx + sx, ty);
        const double hu = height(style, x, y - 1, worldX, worldY - 1, tx, ty - sy);
        const double hd = height(style, x, y + 1, worldX, worldY + 1, tx, ty + sy);
        const auto [lightColour, lipColour] = reliefColours(style);
        const double gx = (hl - hr) * d * 3.2;
        const double gy = (hu - hd) * d * 3.2;
        const double len = std::sqrt(gx * gx + gy * gy + 1);
        const double shade = (gx * Lx + gy * Ly + Lz) / len - Lz;
        if (shade > 0.006) px.add(lightColour, H * shade * (0.85 + d * 1.35) * 2.3);
        if (shade < -0.006) px.add(SH, R * (-shade) * (0.85 + d * 1.35) * 1.85);
        const double lip =
            ramp(std::max(ty, 1 - ty), 0.82, 5.56, 1.45) + ramp(side, 0.82, 5.56, 1.45);
        if (lip > 0) px.add(lipColour, R * lip * d * 0.18);
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
  Color light = mixColor(tint, hex(0xFFFFFF), 0.14);
  Color shadowBase = tint;
  double t = 0.08;
  switch (style.material) {
    case MaterialKind::Paper:
      light = mixColor(style.fill, hex(0xFFFFFF), 0.10);
      break;
    case MaterialKind::CarbonFiber:
      light = mixColor(tint, hex(0xFFFFFF), 0.14);
      break;
    case MaterialKind::ObsidianGlass:
    case MaterialKind::ObsidianRelief:
      light = mixColor(tint, hex(0x38363C), 0.22);
      break;
    case MaterialKind::CarmineGloss:
      light = mixColor(tint, hex(0xFF2A3A), 0.26);
      shadowBase = hex(0x54000A);
      t = 0.34;
      break;
    case MaterialKind::AmberGlass:
      light = mixColor(tint, hex(0xFFA800), 0.32);
      shadowBase = hex(0x5C1C00);
      t = 0.30;
      break;
    case MaterialKind::LuminousGlass:
      light = mixColor(back, tint, 0.38);
      shadowBase = back;
      t = 0.10;
      break;
    case MaterialKind::LayeredGlass:
      light = mixColor(tint, hex(0xBCF4FF), 0.20);
      break;
    case MaterialKind::Gemstone:
      light = mixColor(tint, hex(0xE8FFF4), 0.16);
      t = 0.12;
      break;
    case MaterialKind::Granite:
      light = mixColor(tint, hex(0xEEE8D6), 0.14);
      t = 0.16;
      break;
    case MaterialKind::Marble:
      light = mixColor(tint, hex(0xFFF6E0), 0.22);
      t = 0.16;
      break;
    default:
      break;
  }
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
  const bool plainRect =
      style.shape == ShapeKind::Rectangle && surfaceCoverageBitmap(style) == nullptr;
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
      double dL, dR, dT, dB, dTL, dTR, dBL, dBR;
      if (plainRect) {
        const double cap = reach + 1;
        dL = std::min(cap, left + 1.0);
        dR = std::min(cap, right + 1.0);
        dT = std::min(cap, top + 1.0);
        dB = std::min(cap, bottom + 1.0);
        dTL = std::min(cap, std::min(top, left) + 1.0) * kDiagonal;
        dTR = std::min(cap, std::min(top, right) + 1.0) * kDiagonal;
        dBL = std::min(cap, std::min(bottom, left) + 1.0) * kDiagonal;
        dBR = std::min(cap, std::min(bottom, right) + 1.0) * kDiagonal;
      } else {
        dL = count(x, y, -1, 0);
        dR = count(x, y, 1, 0);
        dT = count(x, y, 0, -1);
        dB = count(x, y, 0, 1);
        dTL = count(x, y, -1, -1) * kDiagonal;
        dTR = count(x, y, 1, -1) * kDiagonal;
        dBL = count(x, y, -1, 1) * kDiagonal;
        dBR = count(x, y, 1, 1) * kDiagonal;
      }
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
