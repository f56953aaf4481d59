// SPDX-License-Identifier: Apache-2.0
#include "filter/GraphicsTexts.h"

#include <algorithm>
#include <array>

namespace filter {

namespace {

constexpr std::array<std::string_view, 4> kLanguages = {"de", "es", "fr", "ja"};

struct Text
{
    std::string_view english;
    std::array<std::string_view, kLanguages.size()> translations;
};

// The words of the sample printer and of the Graphics panel.
constexpr Text kTexts[] = {
    {"Graphics", {"Grafik", "Gráficos", "Graphismes", "グラフィックス"}},
    {"Halftone", {"Raster", "Tramado", "Tramage", "ハーフトーン"}},
    {"Binary", {"Schwellwert", "Umbral", "Seuil", "2値化"}},
    {"Dither", {"Dither", "Trama ordenada", "Trame ordonnée", "ディザ"}},
    {"Error diffusion", {"Fehlerdiffusion", "Difusión de error", "Diffusion d’erreur", "誤差拡散"}},
    {"Brightness", {"Helligkeit", "Brillo", "Luminosité", "明るさ"}},
    {"Contrast", {"Kontrast", "Contraste", "Contraste", "コントラスト"}},
    {"Bi-directional printing",
     {"Bidirektional drucken", "Impresión bidireccional", "Impression bidirectionnelle",
      "双方向印刷"}},
    {"Off", {"Aus", "No", "Désactivé", "オフ"}},
    {"On", {"Ein", "Sí", "Activé", "オン"}},
    {"Colour mode", {"Farbmodus", "Modo de color", "Mode couleur", "カラーモード"}},
    {"Monochrome", {"Einfarbig", "Monocromo", "Monochrome", "モノクロ"}},
    {"Black and red", {"Schwarz und Rot", "Negro y rojo", "Noir et rouge", "黒と赤"}},
    {"Red level", {"Rotanteil", "Nivel de rojo", "Niveau de rouge", "赤のレベル"}},
};

} // namespace

std::string_view translated(std::string_view english, std::string_view language)
{
    const auto *const column = std::find(kLanguages.begin(), kLanguages.end(), language);
    const auto *const row = std::find_if(std::begin(kTexts), std::end(kTexts),
                                         [&](const Text &text) { return text.english == english; });
    if (column == kLanguages.end() || row == std::end(kTexts)) {
        return english;
    }
    return row->translations[static_cast<std::size_t>(column - kLanguages.begin())];
}

} // namespace filter
