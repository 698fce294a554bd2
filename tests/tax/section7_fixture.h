#pragma once
// The screen of section 7 over one open declaration, and what its rows are.

#include <QLabel>

#include "location/screen_driver.h"
#include "sections/tax/screen/frm_apartado7.h"

namespace padral::pruebas {

using D7 = DatosApartado7;

/// A member state as the screen shows it.
struct Estado7 {
    int sufijo;  ///< of its boxes and answers; its row is its place in the list
    const char16_t *etiqueta, *castellano, *euskera;
};
inline void PrintTo(const Estado7& e, std::ostream* salida) { *salida << s(e.etiqueta); }

inline constexpr Estado7 Estados7[] = {
    {1, u"lblAlemania", u"1. Alemania", u"1. Alemania"},
    {2, u"lblAustria", u"2. Austria", u"2. Austria"},
    {3, u"lblBelgica", u"3. Bélgica", u"3. Belgika"},
    {25, u"lblBulgaria", u"4. Bulgaria", u"4. Bulgaria"},
    {26, u"lblCroacia", u"5. Croacia", u"5. Kroazia"},
    {4, u"lblChipre", u"6. Chipre ", u"6. Chipre "},
    {5, u"lblDinamarca", u"7. Dinamarca", u"7. Danimarka"},
    {6, u"lblEslovaquia", u"8. Eslovaquia ", u"8. Eslovaquia "},
    {7, u"lblEslovenia", u"9. Eslovenia ", u"9. Eslovenia "},
    {8, u"lblEstonia", u"10. Estonia ", u"10. Estonia "},
    {9, u"lblFinlandia", u"11. Finlandia", u"11. Finlandia"},
    {10, u"lblGrecia", u"12. Grecia", u"12. Grezia"},
    {11, u"lblFrancia", u"13. Francia", u"13. Frantzia"},
    {12, u"lblHungria", u"14. Hungria ", u"14. Hungria "},
    {13, u"lblIrlanda", u"15. Irlanda", u"15. Irlanda"},
    {14, u"lblItalia", u"16. Italia", u"16. Italia"},
    {15, u"lblLetonia", u"17. Letonia", u"17. Letonia"},
    {16, u"lblLituania", u"18. Lituania ", u"18. Lituania "},
    {17, u"lblLuxemburgo", u"19. Luxemburgo", u"19. Luxenburgo"},
    {18, u"lblMalta", u"20. Malta ", u"20. Malta "},
    {19, u"lblPaisesBajos", u"21. Paises Bajos", u"21. Herbehereak"},
    {20, u"lblPolonia", u"22. Polonia", u"22. Polonia"},
    {21, u"lblPortugal", u"23. Portugal", u"23. Portugal"},
    {22, u"lblReinoUnido", u"24. Reino Unido", u"24. Erresuma Batua"},
    {27, u"lblRumania", u"25. Rumanía", u"25. Errumania"},
    {23, u"lblRepCheca", u"26. Republica Checa ", u"26. Republica Checa "},
    {24, u"lblSuecia", u"27. Suecia", u"27. Suedia"},
};

/// The four columns of boxes: what a tick writes and where the store has it.
struct Columna7 {
    const char16_t* prefijo;
    const char16_t* valor;
    int desplazamiento;  ///< position in the store row less twice the suffix
};
inline constexpr Columna7 Columnas7[] = {
    {u"chkLimSupPais", u"S", -2},
    {u"chkLimInfPais", u"N", -2},
    {u"chkDestPais", u"D", -1},
    {u"chkRevPais", u"R", -1},
};

/// A box, the position of its answer in the store row, the value that it stands for, and its two
/// captions.
struct Casilla7 {
    QString nombre;
    int posicion;
    QString valor;
    QString conFoco = QStringLiteral(" ==>"), sinFoco = QString();
};
inline void PrintTo(const Casilla7& c, std::ostream* salida) { *salida << c.nombre.toStdString(); }

/// All boxes in reading order.
inline std::vector<Casilla7> casillas7() {
    std::vector<Casilla7> todas;
    for (const auto& e : Estados7)
        for (const auto& c : Columnas7)
            todas.push_back({q(c.prefijo) + QString::number(e.sufijo),
                             2 * e.sufijo + c.desplazamiento, q(c.valor)});
    todas.push_back({q(u"chkAgric"), 54, q(u"S")});
    todas.push_back({q(u"chkExentos"), 55, q(u"S")});
    todas.push_back({q(u"chkNoEmp"), 56, q(u"S")});
    todas.push_back({q(u"chkMasLimEuros"), 57, q(u"S"), q(u"     ==> SI"), q(u"            SI")});
    todas.push_back({q(u"chkMenosLimEuros"), 57, q(u"N"), q(u"              ==> NO"),
                     q(u"                     NO")});
    todas.push_back({q(u"chkOpcion"), 58, q(u"O"), q(u"=>OPCIÓN"), q(u"     OPCIÓN")});
    todas.push_back(
        {q(u"chkRevocacion"), 58, q(u"R"), q(u"==> REVOCACIÓN"), q(u"        REVOCACIÓN")});
    return todas;
}

class PantallaApartado7 : public ConPantalla {
protected:
    void abrir() { ConPantalla::abrir(std::make_unique<FrmApartado7>(contexto(), d)); }
    /// One answer: a record that breaks no rule, last accepted as it is.
    void valida() {
        g.Apartado7 = g.AnexoI = g.AnexoII = q(u"X");
        r.LimSupPais[0] = q(u"S");
        r.GuardarDatosAuxiliares();
    }

    /// The names of the ticked boxes, in reading order.
    QStringList marcadas() {
        QStringList nombres;
        for (const auto* caja : pantalla->findChildren<QCheckBox*>())
            if (caja->isChecked()) nombres << caja->objectName();
        QStringList enOrden;
        for (const auto& casilla : casillas7())
            if (nombres.removeAll(casilla.nombre) != 0) enOrden << casilla.nombre;
        return enOrden + nombres;
    }
    QString rotulo(const QString& nombre) { return c<QCheckBox>(nombre)->text(); }
    /// Where a control stands on the screen.
    QRect lugar(const QString& nombre) {
        return {c(nombre)->mapTo(pantalla.get(), QPoint()), c(nombre)->size()};
    }
    /// The store row with nothing but these answers.
    static Fila filaCon(const std::vector<std::pair<int, QString>>& respuestas) {
        Fila fila(59, QVariant(QString()));
        for (const auto& [posicion, valor] : respuestas) fila[posicion] = valor;
        return fila;
    }
    /// What the auxiliary copy holds.
    const D7& auxiliar() const { return r.ObtenerDatosTablaAuxiliar(); }
    const D7& datos() const { return r; }
    QStringList salida(const char16_t* destino) {
        return {q(u"Mostrar ") + q(destino), q(u"Descargar FrmApartado7")};
    }

    cApartado7& r{d.apartado7};
};

}  // namespace padral::pruebas
