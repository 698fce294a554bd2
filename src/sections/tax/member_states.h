#pragma once
// The member states of section 7, in the order of the form.

#include <array>

#include "sections/tax/section7.h"

namespace padral {

/// A row of the form, on screen and paper. `sufijo` is that of the state's properties and boxes;
/// it follows the order in which the states joined the form, the rows the alphabet. The stored
/// answers and the printed marks go by the suffix.
struct FilaEstado {
    std::size_t sufijo;        ///< 1 to 27
    const char16_t* etiqueta;  ///< name of the caption on the screen
    int texto;                 ///< text id of the caption, 0: `literal` in both languages
    const char16_t* literal;

    /// Place of the state's answers in the arrays of the record.
    constexpr std::size_t indice() const { return sufijo - 1; }
};

inline constexpr std::array<FilaEstado, NumEstadosMiembros> FilasEstados = {{
    {1, u"lblAlemania", 274, u""},
    {2, u"lblAustria", 273, u""},
    {3, u"lblBelgica", 272, u""},
    {25, u"lblBulgaria", 875, u""},
    {26, u"lblCroacia", 876, u""},
    {4, u"lblChipre", 0, u"6. Chipre "},
    {5, u"lblDinamarca", 271, u""},
    {6, u"lblEslovaquia", 0, u"8. Eslovaquia "},
    {7, u"lblEslovenia", 0, u"9. Eslovenia "},
    {8, u"lblEstonia", 0, u"10. Estonia "},
    {9, u"lblFinlandia", 270, u""},
    {10, u"lblGrecia", 269, u""},
    {11, u"lblFrancia", 268, u""},
    {12, u"lblHungria", 0, u"14. Hungria "},
    {13, u"lblIrlanda", 267, u""},
    {14, u"lblItalia", 266, u""},
    {15, u"lblLetonia", 878, u""},
    {16, u"lblLituania", 0, u"18. Lituania "},
    {17, u"lblLuxemburgo", 265, u""},
    {18, u"lblMalta", 0, u"20. Malta "},
    {19, u"lblPaisesBajos", 264, u""},
    {20, u"lblPolonia", 0, u"22. Polonia"},
    {21, u"lblPortugal", 263, u""},
    {22, u"lblReinoUnido", 262, u""},
    {27, u"lblRumania", 877, u""},
    {23, u"lblRepCheca", 0, u"26. Republica Checa "},
    {24, u"lblSuecia", 261, u""},
}};

}  // namespace padral
