#pragma once
// The declarations of the matrix: types, persons, days; and the file of each of them.

#include "script.h"

namespace padral::pruebas {

/// The last day before each change and its first day. Stored, opened, changed and deleted is each;
/// looked at are those around a change of the screens, printed those around one of the pages.
struct Dia {
    int fecha;
    bool mirar, imprimir, copiar;
};
inline constexpr Dia Dias[] = {{19991231, false, false, true}, {20000101, false, false, false},
                               {20081231, false, true, false}, {20090101, false, true, false},
                               {20131231, true, false, false}, {20140101, true, false, false},
                               {20141231, true, true, false},  {20150101, true, true, true}};
inline constexpr int Edicion2014 = 20140101, Edicion2015 = 20150101;

struct Persona {
    const char* nombre;
    const char16_t* identidad;  ///< commands of the general data
    const char16_t* censo;      ///< of section 3
    const char16_t* formaJuridica;
    const char16_t* casillas;  ///< of section 5: how it is taxed
    const char16_t* causa;     ///< of the cessation
    bool participes, anexoII, puedePedir;
};
inline constexpr Persona Personas[] = {
    {"Natural", u"txtDNI = 72001101S\ntick chkElMismo", u"tick optResidente(0)", u"", u"4 21 26",
     u"CESE DE ACTIVIDAD", false, false, false},
    {"Company",
     u"txtDNI = B20102034\ntxtDNIRepresentante = 44003303W ; txtNombreRepresentante = Etxarri, "
     u"Jone ; txtFirmaEnCalidadDe = Administradora",
     u"tick optResidente(0)\nchoose cmbDescFormaJuridica = SOCIEDAD LIMITADA - B\n"
     u"mskFechaCierre = 31/12",
     u"6", u"3 22 26", u"CESE SIN DISOLUCION", false, false, true},
    {"Community",
     u"txtDNI = E20124053\ntxtDNIRepresentante = 44003303W ; txtNombreRepresentante = Etxarri, "
     u"Jone ; txtFirmaEnCalidadDe = Comunera",
     u"tick optResidente(0)\nchoose cmbDescFormaJuridica = COMUNIDAD DE BIENES - E", u"13",
     u"4 22 26", u"CESE DE ACTIVIDAD", true, false, true},
    {"NonResident",
     u"txtDNI = N0012607H\ntxtDNIRepresentante = 44003303W ; txtNombreRepresentante = Etxarri, "
     u"Jone ; txtFirmaEnCalidadDe = Representante",
     u"tick optResidente(1)\nchoose cmbDescFormaJuridica = ENTIDAD EXTRANJERA - N\n"
     u"mskFechaCierre = 30/06",
     u"33", u"4 22 26", u"CESE SIN DISOLUCION", false, true, true},
};

struct Tipo {
    const char* nombre;
    char16_t letra;             ///< 0: requests only
    const char16_t* casilla;    ///< box of the type
    const char16_t* apartados;  ///< sections that it holds, by their numbers
    const char16_t* porMarcar;  ///< those of them that it does not mark by itself
};
inline constexpr Tipo Tipos[] = {
    {"Previous", u'P', u"chkDeclaracionPrevia", u"235", u""},
    {"Start", u'I', u"chkDeclaracionInicio", u"35", u"3"},
    {"Change", u'M', u"chkDeclaracionModificacion", u"345", u"345"},
    {"Cessation", u'C', u"chkDeclaracionCese", u"56", u"5"},
    {"Requests", 0, u"chkPorExtravio", u"", u""},
};

/// Writes the file of one declaration.
class Redaccion {
public:
    /// `dia`: the date of effect and that of the declaration.
    Redaccion(const Tipo& tipo, const Persona& persona, int dia)
        : tipo_(tipo), persona_(persona), dia_(dia) {}

    /// What is entered, looked at and changed.
    Guion Escribir();
    /// What must be in the store, among the rest.
    QMap<QString, QString> Guardado() const;
    /// Pages of a copy for the declarant.
    int Paginas() const;

private:
    bool conParticipes() const { return persona_.participes && tipo_.letra != 0; }
    bool conAnexoII() const { return persona_.anexoII && tipo_.letra != 0 && tipo_.letra != u'C'; }
    /// A person without an identifier asks for one; who has one asks for nothing.
    bool sinIdentificador() const { return tipo_.letra == 0 && !persona_.puedePedir; }
    QString fecha() const;
    QString apartados() const;
    QString fechaVigor() const;
    QString edicion(const QString& pantalla) const;

    void generales();
    void marcarApartados();
    QString camino() const;
    void pantallas();
    void abrir(QChar numero);
    void pantalla(QChar numero);
    void domicilio();
    void censo();
    void solicitudes();
    void situacion();
    void cese();
    void participes();
    void participe(const QString& nif, const QString& nombre, const QString& parte);
    void anexoII();

    Tipo tipo_;
    Persona persona_;
    int dia_;
    QString entrada_, recorrido_, cese_;
};

}  // namespace padral::pruebas
