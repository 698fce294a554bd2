// The participants across the declaration: their identifiers, how many they are, their shares.

#include "declaration/cross_rules_cases.h"

namespace padral::pruebas {
namespace {

const AvisoEsperado NifsMalos{0, 753, u"", u"", true};
const AvisoEsperado PocosParticipes{754, 0};

class ParticipesCruzados : public ConCruces {
protected:
    /// A community whose only participants are these, "12345678Z:C" the identifier and its mode.
    void prepararCon(Base base, std::initializer_list<const char16_t*> participes) {
        preparar(base);
        d.participantes.colParticipes.clear();
        while (d.NumParti > 0) d.DecrementarNumParti();
        for (const char16_t* p : participes)
            sumarParticipe(d, q(p).section(u':', 0, 0), q(p).section(u':', 1));
    }
    /// The check informs of this, and the whole check passes with it.
    void esperaAvisoQuePasa(const AvisoEsperado& aviso, const QString& compuesto) {
        const auto revision = ValidarNifsParticipes(d, valida);
        comprobarAvisos(revision, {aviso});
        EXPECT_EQ(revision.compuesto, compuesto);
        const auto resultado = validar();
        EXPECT_TRUE(resultado.pasa);
        comprobarAvisos(resultado.revision, {aviso});
        EXPECT_EQ(resultado.revision.compuesto, compuesto);
    }
    void esperaNada() {
        comprobarAvisos(ValidarNifsParticipes(d, valida), {});
        comprobarRegla(validar(), 0);
    }
};

TEST_F(ParticipesCruzados, UnNifMaloSeDiceYPasa) {
    prepararCon(Base::Comunidad, {u"12345678Z:C", u"12345678A:A"});
    malos = QStringList{QStringLiteral("12345678A")};
    esperaAvisoQuePasa(NifsMalos, q(u"El/los participes 12345678A tiene/n un NIF erróneo"));
    enEuskera();
    esperaAvisoQuePasa(NifsMalos, q(u"12345678APartaideak/ek IFZ zenbaki okerra du/te"));
}

TEST_F(ParticipesCruzados, VariosNifsMalosVanConComasEnSuOrden) {
    prepararCon(Base::Comunidad, {u"33333333P:C", u"12345678Z:C", u"11111111H:A", u"22222222J:C"});
    malos = QStringList{QStringLiteral("11111111H"), QStringLiteral("22222222J"),
                        QStringLiteral("33333333P")};
    esperaAvisoQuePasa(
        NifsMalos, q(u"El/los participes 33333333P,11111111H,22222222J tiene/n un NIF erróneo"));
    enEuskera();
    esperaAvisoQuePasa(NifsMalos,
                       q(u"33333333P,11111111H,22222222JPartaideak/ek IFZ zenbaki okerra du/te"));
}

TEST_F(ParticipesCruzados, LosBorradosNoCuentan) {
    malos = QStringList{QStringLiteral("12345678A")};
    prepararCon(Base::Comunidad, {u"12345678Z:C", u"12345678A:E", u"87654321X:A"});
    esperaNada();
    prepararCon(Base::Comunidad, {u"12345678Z:C", u"87654321X:E"});
    esperaAvisoQuePasa(PocosParticipes, {});
}

TEST_F(ParticipesCruzados, UnNifMaloSeDiceDeCualquierDeclarante) {
    malos = QStringList{QStringLiteral("12345678A")};
    for (const Base base : {Base::Persona, Base::Sociedad, Base::SinNif}) {
        prepararCon(base, {u"12345678A:C"});
        esperaNada();
        poner(d, u"g.AnexoI=X");
        esperaAvisoQuePasa(NifsMalos, q(u"El/los participes 12345678A tiene/n un NIF erróneo"));
    }
}

TEST_F(ParticipesCruzados, UnaComunidadDeberiaTenerDos) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        for (const char16_t* dni :
             {u"g.DNI=E12345674", u"g.DNI=G12345674", u"g.DNI=H12345674", u"g.DNI=J12345674"}) {
            SCOPED_TRACE(s(dni));
            prepararCon(Base::Comunidad, {u"12345678Z:C"});
            poner(d, dni);
            esperaAvisoQuePasa(PocosParticipes, {});
            sumarParticipe(d, QStringLiteral("87654321X"), QStringLiteral("A"));
            esperaNada();
        }
    }
}

TEST_F(ParticipesCruzados, ALosDemasLesBastaUno) {
    for (const Base base : {Base::Persona, Base::Sociedad, Base::SinNif}) {
        prepararCon(base, {u"12345678Z:C"});
        poner(d, u"g.AnexoI=X");
        esperaNada();
    }
}

TEST_F(ParticipesCruzados, UnNifMaloSeDiceEnLugarDeLosPocos) {
    malos = QStringList{QStringLiteral("12345678A")};
    prepararCon(Base::Comunidad, {u"12345678A:C"});
    esperaAvisoQuePasa(NifsMalos, q(u"El/los participes 12345678A tiene/n un NIF erróneo"));
}

TEST_F(ParticipesCruzados, SinElAnexoMarcadoNoSeMiran) {
    malos = QStringList{QStringLiteral("12345678A")};
    for (const char16_t* marca : {u"g.AnexoI=", u"g.AnexoI=_"}) {
        prepararCon(Base::Comunidad, {u"12345678A:C"});
        poner(d, marca);
        esperaNada();
    }
}

TEST_F(ParticipesCruzados, CualquierOtraReglaVieneAntes) {
    malos = QStringList{QStringLiteral("12345678A")};
    for (const auto& [regla, base, cambio] : Rotas) {
        // A participant is data too, so that an empty change is no longer empty.
        if (regla == 48) continue;
        SCOPED_TRACE(s(cambio));
        preparar(base, cambio);
        poner(d, u"g.AnexoI=X p.C=12345678A");
        comprobarRegla(validar(), regla);
    }
}

}  // namespace
}  // namespace padral::pruebas
