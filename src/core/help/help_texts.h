#pragma once
// The words of the help window and of the boxes about it, both languages side by side. They have no
// number; the numbered texts are in the catalogue. `&` marks an access key, %1 what is put in.

#include "core/shared_state.h"

namespace padral {

struct TextoAyuda {
    QStringView castellano;
    QStringView euskera;

    /// The text in the language of the run.
    QString En(const EstadoCompartido& estado) const {
        return estado.SegunIdioma(castellano.toString(), euskera.toString());
    }
};

namespace textos_ayuda {

inline constexpr TextoAyuda FicheroAusente{u"No se encuentra el fichero de ayuda «%1».",
                                           u"Ez da «%1» laguntza-fitxategia aurkitu."};
inline constexpr TextoAyuda CarpetaAusente{u"No se encuentra la carpeta de ayuda «%1».",
                                           u"Ez da «%1» laguntza-karpeta aurkitu."};
inline constexpr TextoAyuda PaginaAusente{u"No se encuentra la página de ayuda «%1».",
                                          u"Ez da «%1» laguntza-orria aurkitu."};

inline constexpr TextoAyuda Atras{u"Atrás", u"Atzera"};
inline constexpr TextoAyuda Adelante{u"Adelante", u"Aurrera"};
inline constexpr TextoAyuda Indice{u"Índice", u"Aurkibidea"};
/// Keys of the three, behind their captions.
inline constexpr TextoAyuda TeclaAtras{u"Alt+←", u"Alt+←"};
inline constexpr TextoAyuda TeclaAdelante{u"Alt+→", u"Alt+→"};
inline constexpr TextoAyuda TeclaIndice{u"Alt+Inicio", u"Alt+Hasiera"};
inline constexpr TextoAyuda Pagina{u"Página de ayuda", u"Laguntza-orria"};

inline constexpr TextoAyuda FichaContenido{u"&Contenido", u"&Edukia"};
inline constexpr TextoAyuda FichaBuscar{u"&Buscar", u"&Bilatu"};
inline constexpr TextoAyuda Palabras{u"&Palabras:", u"&Hitzak:"};
inline constexpr TextoAyuda Buscar{u"B&uscar", u"Bi&latu"};
inline constexpr TextoAyuda PalabrasBuscadas{u"Palabras que se buscan", u"Bilatu beharreko hitzak"};
inline constexpr TextoAyuda PaginasHalladas{u"Páginas encontradas", u"Aurkitutako orriak"};
inline constexpr TextoAyuda NingunaPagina{u"Ninguna página contiene esas palabras.",
                                          u"Ez dago hitz horiek dituen orririk."};
inline constexpr TextoAyuda UnaPagina{u"Una página encontrada.", u"Orri bat aurkitu da."};
inline constexpr TextoAyuda VariasPaginas{u"%1 páginas encontradas.", u"%1 orri aurkitu dira."};

}  // namespace textos_ayuda

}  // namespace padral
