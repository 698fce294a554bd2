-- A declarations file of layout 1 with rows in every table, as its program wrote it. Never changed:
-- it stands for the files that people have. Values tell their column and row; declaration 3 has empty
-- sections, the fourth declaration and the first participant have been deleted.
PRAGMA application_id = 1346654797;
PRAGMA user_version = 1;
BEGIN;

CREATE TABLE "TDeclaraciones" (
    "csde" INTEGER PRIMARY KEY AUTOINCREMENT, "DNI" TEXT NOT NULL DEFAULT '',
    "NOMBRE" TEXT NOT NULL DEFAULT '', "NumeroArchivo" TEXT NOT NULL DEFAULT '',
    "FECHADECLARACION" INTEGER NOT NULL DEFAULT 0, "FechaConstitucion" INTEGER NOT NULL DEFAULT 0,
    "FechaInscripcion" INTEGER NOT NULL DEFAULT 0, "Causa1" TEXT NOT NULL DEFAULT '',
    "Causa2" TEXT NOT NULL DEFAULT '', "DNIAnterior" TEXT NOT NULL DEFAULT '',
    "NombreAnterior" TEXT NOT NULL DEFAULT '', "MotivoCambio" INTEGER NOT NULL DEFAULT 0,
    "APARTADOS" TEXT NOT NULL DEFAULT '', "FechaModificacion" INTEGER NOT NULL DEFAULT 0,
    "DNIRepresentante" TEXT NOT NULL DEFAULT '', "NombreRepresentante" TEXT NOT NULL DEFAULT '',
    "FirmaEnCalidadDe" TEXT NOT NULL DEFAULT '', "ElMismo" TEXT NOT NULL DEFAULT '',
    DniMayusculas TEXT NOT NULL, NombreMayusculas TEXT NOT NULL, ReferenciaMayusculas TEXT NOT NULL,
    NombreClave BLOB NOT NULL, ReferenciaClave BLOB NOT NULL
) STRICT;
INSERT INTO TDeclaraciones VALUES
    (
        1, '12345678Z', 'ÑUÑEZ ETXEBERRIA, MAITE', '2024/001', 20240101, 1005, 1006, 'A', '',
        'DNIAnterior 1', 'NombreAnterior 1', 1011, '1100001 ', 1013, 'DNIRepresentante 1',
        'NombreRepresentante 1', 'FirmaEnCalidadDe 1', 'ElMismo 1', '12345678Z',
        'ÑUÑEZ ETXEBERRIA, MAITE', '2024/001',
        X'4502524502325C04325058322C324C4C3A2A0604422A3A5032011B00', X'1713171B0A9E131315010C00'
    ), (
        2, 'B20000004', 'nube blanca, s.l.', '', 20240102, 2005, 2006, 'A', 'R', 'DNIAnterior 2',
        'NombreAnterior 2', 2011, '1100001 ', 2013, 'DNIRepresentante 2', 'NombreRepresentante 2',
        'FirmaEnCalidadDe 2', 'ElMismo 2', 'B20000004', 'NUBE BLANCA, S.L.', '',
        X'44522C32042C402A442E2A06044E084008011500', X'0100'
    ), (
        3, 'X1234567L', 'O''Hara & Oña 😀 ', 'ñ-3', 20240103, 3005, 3006, 'C', '', 'DNIAnterior 3',
        'NombreAnterior 3', 3011, '1100001 ', 3013, 'DNIRepresentante 3', 'NombreRepresentante 3',
        'FirmaEnCalidadDe 3', 'ElMismo 3', 'X1234567L', 'O''HARA & OÑA 😀 ', 'Ñ-3',
        X'46096E382A4C2A040AA4044645022A040D2F6904011300', X'4502050E19010700'
    );
CREATE INDEX IListaDni ON TDeclaraciones (
    DniMayusculas, csde, DNI, NOMBRE, NumeroArchivo, FECHADECLARACION, Causa1, APARTADOS, Causa2,
    DniMayusculas, NombreMayusculas, ReferenciaMayusculas
);
CREATE INDEX IListaNombre ON TDeclaraciones (
    NombreClave, csde, DNI, NOMBRE, NumeroArchivo, FECHADECLARACION, Causa1, APARTADOS, Causa2,
    DniMayusculas, NombreMayusculas, ReferenciaMayusculas
);
CREATE INDEX IListaReferencia ON TDeclaraciones (
    ReferenciaClave, csde, DNI, NOMBRE, NumeroArchivo, FECHADECLARACION, Causa1, APARTADOS, Causa2,
    DniMayusculas, NombreMayusculas, ReferenciaMayusculas
);
CREATE INDEX IListaFecha ON TDeclaraciones (
    FECHADECLARACION, csde, DNI, NOMBRE, NumeroArchivo, FECHADECLARACION, Causa1, APARTADOS, Causa2,
    DniMayusculas, NombreMayusculas, ReferenciaMayusculas
);

CREATE TABLE "TApartado2" (
    csde INTEGER PRIMARY KEY, "SiglasDomicilioFis" TEXT NOT NULL DEFAULT '',
    "NombreDomicilioFis" TEXT NOT NULL DEFAULT '', "NumeroFis" INTEGER NOT NULL DEFAULT 0,
    "LetraFis" TEXT NOT NULL DEFAULT '', "EscaleraFis" TEXT NOT NULL DEFAULT '',
    "PisoFis" TEXT NOT NULL DEFAULT '', "ManoFis" TEXT NOT NULL DEFAULT '',
    "CodigoPostalFis" INTEGER NOT NULL DEFAULT 0, "CodigoMunicipioFis" INTEGER NOT NULL DEFAULT 0,
    "NombreMunicipioFis" TEXT NOT NULL DEFAULT '', "TelefonoFis" INTEGER NOT NULL DEFAULT 0,
    "SiglasDomicilioAct" TEXT NOT NULL DEFAULT '', "NombreDomicilioAct" TEXT NOT NULL DEFAULT '',
    "NumeroAct" INTEGER NOT NULL DEFAULT 0, "LetraAct" TEXT NOT NULL DEFAULT '',
    "EscaleraAct" TEXT NOT NULL DEFAULT '', "PisoAct" TEXT NOT NULL DEFAULT '',
    "ManoAct" TEXT NOT NULL DEFAULT '', "CodigoPostalAct" INTEGER NOT NULL DEFAULT 0,
    "CodigoMunicipioAct" INTEGER NOT NULL DEFAULT 0, "NombreMunicipioAct" TEXT NOT NULL DEFAULT '',
    "TelefonoAct" INTEGER NOT NULL DEFAULT 0, "ElMismoAct" TEXT NOT NULL DEFAULT '',
    "SiglasDomicilioSoc" TEXT NOT NULL DEFAULT '', "NombreDomicilioSoc" TEXT NOT NULL DEFAULT '',
    "NumeroSoc" INTEGER NOT NULL DEFAULT 0, "LetraSoc" TEXT NOT NULL DEFAULT '',
    "EscaleraSoc" TEXT NOT NULL DEFAULT '', "PisoSoc" TEXT NOT NULL DEFAULT '',
    "ManoSoc" TEXT NOT NULL DEFAULT '', "CodigoPostalSoc" INTEGER NOT NULL DEFAULT 0,
    "CodigoMunicipioSoc" INTEGER NOT NULL DEFAULT 0, "NombreMunicipioSoc" TEXT NOT NULL DEFAULT '',
    "TelefonoSoc" INTEGER NOT NULL DEFAULT 0, "ElMismoSoc" TEXT NOT NULL DEFAULT '',
    "SiglasDomicilioNot" TEXT NOT NULL DEFAULT '', "NombreDomicilioNot" TEXT NOT NULL DEFAULT '',
    "NumeroNot" INTEGER NOT NULL DEFAULT 0, "LetraNot" TEXT NOT NULL DEFAULT '',
    "EscaleraNot" TEXT NOT NULL DEFAULT '', "PisoNot" TEXT NOT NULL DEFAULT '',
    "ManoNot" TEXT NOT NULL DEFAULT '', "CodigoPostalNot" INTEGER NOT NULL DEFAULT 0,
    "CodigoMunicipioNot" INTEGER NOT NULL DEFAULT 0, "NombreMunicipioNot" TEXT NOT NULL DEFAULT '',
    "TelefonoNot" INTEGER NOT NULL DEFAULT 0, "ElMismoNot" TEXT NOT NULL DEFAULT ''
) STRICT;
INSERT INTO TApartado2 VALUES
    (
        1, 'SiglasDomicilioFis 1', 'NombreDomicilioFis 1', 1002, 'LetraFis 1', 'EscaleraFis 1',
        'PisoFis 1', 'ManoFis 1', 1007, 1008, 'NombreMunicipioFis 1', 1010, 'SiglasDomicilioAct 1',
        'NombreDomicilioAct 1', 1013, 'LetraAct 1', 'EscaleraAct 1', 'PisoAct 1', 'ManoAct 1', 1018,
        1019, 'NombreMunicipioAct 1', 1021, 'ElMismoAct 1', 'SiglasDomicilioSoc 1',
        'NombreDomicilioSoc 1', 1025, 'LetraSoc 1', 'EscaleraSoc 1', 'PisoSoc 1', 'ManoSoc 1', 1030,
        1031, 'NombreMunicipioSoc 1', 1033, 'ElMismoSoc 1', 'SiglasDomicilioNot 1',
        'NombreDomicilioNot 1', 1037, 'LetraNot 1', 'EscaleraNot 1', 'PisoNot 1', 'ManoNot 1', 1042,
        1043, 'NombreMunicipioNot 1', 1045, 'ElMismoNot 1'
    ), (
        2, 'SiglasDomicilioFis 2', 'NombreDomicilioFis 2', 2002, 'LetraFis 2', 'EscaleraFis 2',
        'PisoFis 2', 'ManoFis 2', 2007, 2008, 'NombreMunicipioFis 2', 2010, 'SiglasDomicilioAct 2',
        'NombreDomicilioAct 2', 2013, 'LetraAct 2', 'EscaleraAct 2', 'PisoAct 2', 'ManoAct 2', 2018,
        2019, 'NombreMunicipioAct 2', 2021, 'ElMismoAct 2', 'SiglasDomicilioSoc 2',
        'NombreDomicilioSoc 2', 2025, 'LetraSoc 2', 'EscaleraSoc 2', 'PisoSoc 2', 'ManoSoc 2', 2030,
        2031, 'NombreMunicipioSoc 2', 2033, 'ElMismoSoc 2', 'SiglasDomicilioNot 2',
        'NombreDomicilioNot 2', 2037, 'LetraNot 2', 'EscaleraNot 2', 'PisoNot 2', 'ManoNot 2', 2042,
        2043, 'NombreMunicipioNot 2', 2045, 'ElMismoNot 2'
    ), (
        3, '', '', 0, '', '', '', '', 0, 0, '', 0, '', '', 0, '', '', '', '', 0, 0, '', 0, '', '',
        '', 0, '', '', '', '', 0, 0, '', 0, '', '', '', 0, '', '', '', '', 0, 0, '', 0, ''
    );

CREATE TABLE "TApartado3" (
    csde INTEGER PRIMARY KEY, "ResidenteKelmaria" TEXT NOT NULL DEFAULT ' ',
    "PorcenDeduccion" INTEGER NOT NULL DEFAULT 0, "FechaInicio" INTEGER NOT NULL DEFAULT 0,
    "ActivEcon" TEXT NOT NULL DEFAULT '', "ListaEpigrafe" TEXT NOT NULL DEFAULT '',
    "CodigoFormaJuridica" INTEGER NOT NULL DEFAULT 0,
    "DescripcionFormaJuridica" TEXT NOT NULL DEFAULT '', "Anagrama" TEXT NOT NULL DEFAULT '',
    "FechaCierre" INTEGER NOT NULL DEFAULT 0, "SocPat" TEXT NOT NULL DEFAULT '',
    "IdiomaPref" TEXT NOT NULL DEFAULT ' ', "MedioPref" TEXT NOT NULL DEFAULT ' ',
    "Correo" TEXT NOT NULL DEFAULT ' ', "DirCorreo" TEXT NOT NULL DEFAULT '',
    "Fax" TEXT NOT NULL DEFAULT ' ', "numFax" INTEGER NOT NULL DEFAULT 0,
    "Movil" TEXT NOT NULL DEFAULT ' ', "numMovil" INTEGER NOT NULL DEFAULT 0,
    "Fijo" TEXT NOT NULL DEFAULT ' ', "numFijo" INTEGER NOT NULL DEFAULT 0,
    "Consentimiento" TEXT NOT NULL DEFAULT ' ', "Revocacion" TEXT NOT NULL DEFAULT ' ',
    "ActVenMov" TEXT NOT NULL DEFAULT ''
) STRICT;
INSERT INTO TApartado3 VALUES
    (
        1, 'X', 1001, 1002, 'ActivEcon 1', 'ListaEpigrafe 1', 1005, 'DescripcionFormaJuridica 1',
        'Anagrama 1', 1008, 'SocPat 1', ' ', ' ', 'X', 'DirCorreo 1', ' ', 1015, ' ', 1017, 'X',
        1019, ' ', 'X', 'ActVenMov 1'
    ), (
        2, 'X', 2001, 2002, 'ActivEcon 2', 'ListaEpigrafe 2', 2005, 'DescripcionFormaJuridica 2',
        'Anagrama 2', 2008, 'SocPat 2', ' ', ' ', 'X', 'DirCorreo 2', ' ', 2015, ' ', 2017, 'X',
        2019, ' ', 'X', 'ActVenMov 2'
    ), (
        3, ' ', 0, 0, '', '', 0, '', '', 0, '', ' ', ' ', ' ', '', ' ', 0, ' ', 0, ' ', 0, ' ', ' ',
        ''
    );

CREATE TABLE "TApartado4" (
    csde INTEGER PRIMARY KEY, "IRPFOBJET" TEXT NOT NULL DEFAULT ' ',
    "IRPFDIRECT" TEXT NOT NULL DEFAULT ' ', "IVAAGRIC" TEXT NOT NULL DEFAULT ' ',
    "IVASIMPLIF" TEXT NOT NULL DEFAULT ' ', "IVAEXPORT" TEXT NOT NULL DEFAULT ' ',
    "IVAEXPORTINTRA" TEXT NOT NULL DEFAULT ' ', "IVAAGENCIAS" TEXT NOT NULL DEFAULT ' ',
    "IVABIENES" TEXT NOT NULL DEFAULT ' ', "IVASOCIO" TEXT NOT NULL DEFAULT ' ',
    "NIF" TEXT NOT NULL DEFAULT ' ', "NOMBRE" TEXT NOT NULL DEFAULT ' ',
    "SONF" TEXT NOT NULL DEFAULT ' ', "IVACAJA" TEXT NOT NULL DEFAULT ' ',
    "IVACUOADU" TEXT NOT NULL DEFAULT ' '
) STRICT;
INSERT INTO TApartado4 VALUES
    (
        1, 'X', ' ', ' ', 'X', ' ', ' ', 'X', ' ', ' ', 'X', ' ', ' ', 'X', ' '
    ), (
        2, 'X', ' ', ' ', 'X', ' ', ' ', 'X', ' ', ' ', 'X', ' ', ' ', 'X', ' '
    ), (
        3, ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' '
    );

CREATE TABLE "TApartado5" (
    csde INTEGER PRIMARY KEY, "GRANEMPRESA" TEXT NOT NULL DEFAULT ' ',
    "SOCIEDADES" TEXT NOT NULL DEFAULT ' ', "ADMINISTRACIONES" TEXT NOT NULL DEFAULT ' ',
    "EXENTASOCI" TEXT NOT NULL DEFAULT ' ', "ART117" TEXT NOT NULL DEFAULT ' ',
    "COOPERATIVA" TEXT NOT NULL DEFAULT ' ', "CONSOLIDACION" TEXT NOT NULL DEFAULT ' ',
    "DOMINANTE" TEXT NOT NULL DEFAULT ' ', "SATISRENDTRAB" TEXT NOT NULL DEFAULT ' ',
    "SATISRENDARREN" TEXT NOT NULL DEFAULT ' ', "IRPFDIRECTA" TEXT NOT NULL DEFAULT ' ',
    "IRPFOBJETIVA" TEXT NOT NULL DEFAULT ' ', "IRPFDIRECTSIMPLIF" TEXT NOT NULL DEFAULT ' ',
    "IVA" TEXT NOT NULL DEFAULT ' ', "GENERAL" TEXT NOT NULL DEFAULT ' ',
    "RECARGO" TEXT NOT NULL DEFAULT ' ', "AGENCIASOPERACION" TEXT NOT NULL DEFAULT ' ',
    "AGENCIASGLOBAL" TEXT NOT NULL DEFAULT ' ', "BIENESUSADOS" TEXT NOT NULL DEFAULT ' ',
    "BIENESMARGEN" TEXT NOT NULL DEFAULT ' ', "Agric" TEXT NOT NULL DEFAULT ' ',
    "SIMPLIF" TEXT NOT NULL DEFAULT ' ', "OPEXSINDCHO" TEXT NOT NULL DEFAULT ' ',
    "NORECARGO" TEXT NOT NULL DEFAULT ' ', "NOAGRIC" TEXT NOT NULL DEFAULT ' ',
    "NOEXENTAS" TEXT NOT NULL DEFAULT ' ', "NOCONCIERTO" TEXT NOT NULL DEFAULT ' ',
    "IVACAJA" TEXT NOT NULL DEFAULT ' '
) STRICT;
INSERT INTO TApartado5 VALUES
    (
        1, 'X', ' ', ' ', 'X', ' ', ' ', 'X', ' ', ' ', 'X', ' ', ' ', 'X', ' ', ' ', 'X', ' ', ' ',
        'X', ' ', ' ', 'X', ' ', ' ', 'X', ' ', ' ', 'X'
    ), (
        2, 'X', ' ', ' ', 'X', ' ', ' ', 'X', ' ', ' ', 'X', ' ', ' ', 'X', ' ', ' ', 'X', ' ', ' ',
        'X', ' ', ' ', 'X', ' ', ' ', 'X', ' ', ' ', 'X'
    ), (
        3, ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ',
        ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' '
    );

CREATE TABLE "TApartado6" (
    csde INTEGER PRIMARY KEY, "FECHACESE" INTEGER NOT NULL DEFAULT 0,
    "CAUSA" INTEGER NOT NULL DEFAULT 0, "DESCRIPCIONCAUSA" TEXT NOT NULL DEFAULT ' ',
    "FechaInscripcion" INTEGER NOT NULL DEFAULT 0
) STRICT;
INSERT INTO TApartado6 VALUES
    (
        1, 1000, 1001, ' ', 1003
    ), (
        2, 2000, 2001, ' ', 2003
    ), (
        3, 0, 0, ' ', 0
    );

CREATE TABLE "TApartado7" (
    csde INTEGER PRIMARY KEY, "LimSupPais1" TEXT NOT NULL DEFAULT '',
    "DestRevocPais1" TEXT NOT NULL DEFAULT '', "LimSupPais2" TEXT NOT NULL DEFAULT '',
    "DestRevocPais2" TEXT NOT NULL DEFAULT '', "LimSupPais3" TEXT NOT NULL DEFAULT '',
    "DestRevocPais3" TEXT NOT NULL DEFAULT '', "LimSupPais4" TEXT NOT NULL DEFAULT '',
    "DestRevocPais4" TEXT NOT NULL DEFAULT '', "LimSupPais5" TEXT NOT NULL DEFAULT '',
    "DestRevocPais5" TEXT NOT NULL DEFAULT '', "LimSupPais6" TEXT NOT NULL DEFAULT '',
    "DestRevocPais6" TEXT NOT NULL DEFAULT '', "LimSupPais7" TEXT NOT NULL DEFAULT '',
    "DestRevocPais7" TEXT NOT NULL DEFAULT '', "LimSupPais8" TEXT NOT NULL DEFAULT '',
    "DestRevocPais8" TEXT NOT NULL DEFAULT '', "LimSupPais9" TEXT NOT NULL DEFAULT '',
    "DestRevocPais9" TEXT NOT NULL DEFAULT '', "LimSupPais10" TEXT NOT NULL DEFAULT '',
    "DestRevocPais10" TEXT NOT NULL DEFAULT '', "LimSupPais11" TEXT NOT NULL DEFAULT '',
    "DestRevocPais11" TEXT NOT NULL DEFAULT '', "LimSupPais12" TEXT NOT NULL DEFAULT '',
    "DestRevocPais12" TEXT NOT NULL DEFAULT '', "LimSupPais13" TEXT NOT NULL DEFAULT '',
    "DestRevocPais13" TEXT NOT NULL DEFAULT '', "LimSupPais14" TEXT NOT NULL DEFAULT '',
    "DestRevocPais14" TEXT NOT NULL DEFAULT '', "LimSupPais15" TEXT NOT NULL DEFAULT '',
    "DestRevocPais15" TEXT NOT NULL DEFAULT '', "LimSupPais16" TEXT NOT NULL DEFAULT '',
    "DestRevocPais16" TEXT NOT NULL DEFAULT '', "LimSupPais17" TEXT NOT NULL DEFAULT '',
    "DestRevocPais17" TEXT NOT NULL DEFAULT '', "LimSupPais18" TEXT NOT NULL DEFAULT '',
    "DestRevocPais18" TEXT NOT NULL DEFAULT '', "LimSupPais19" TEXT NOT NULL DEFAULT '',
    "DestRevocPais19" TEXT NOT NULL DEFAULT '', "LimSupPais20" TEXT NOT NULL DEFAULT '',
    "DestRevocPais20" TEXT NOT NULL DEFAULT '', "LimSupPais21" TEXT NOT NULL DEFAULT '',
    "DestRevocPais21" TEXT NOT NULL DEFAULT '', "LimSupPais22" TEXT NOT NULL DEFAULT '',
    "DestRevocPais22" TEXT NOT NULL DEFAULT '', "LimSupPais23" TEXT NOT NULL DEFAULT '',
    "DestRevocPais23" TEXT NOT NULL DEFAULT '', "LimSupPais24" TEXT NOT NULL DEFAULT '',
    "DestRevocPais24" TEXT NOT NULL DEFAULT '', "LimSupPais25" TEXT NOT NULL DEFAULT '',
    "DestRevocPais25" TEXT NOT NULL DEFAULT '', "LimSupPais26" TEXT NOT NULL DEFAULT '',
    "DestRevocPais26" TEXT NOT NULL DEFAULT '', "LimSupPais27" TEXT NOT NULL DEFAULT '',
    "DestRevocPais27" TEXT NOT NULL DEFAULT '', "Agric" TEXT NOT NULL DEFAULT '',
    "Exentos" TEXT NOT NULL DEFAULT '', "NoEmpresarios" TEXT NOT NULL DEFAULT '',
    "MasLimEuros" TEXT NOT NULL DEFAULT '', "TributDestino" TEXT NOT NULL DEFAULT ''
) STRICT;
INSERT INTO TApartado7 VALUES
    (
        1, 'LimSupPais1 1', 'DestRevocPais1 1', 'LimSupPais2 1', 'DestRevocPais2 1',
        'LimSupPais3 1', 'DestRevocPais3 1', 'LimSupPais4 1', 'DestRevocPais4 1', 'LimSupPais5 1',
        'DestRevocPais5 1', 'LimSupPais6 1', 'DestRevocPais6 1', 'LimSupPais7 1',
        'DestRevocPais7 1', 'LimSupPais8 1', 'DestRevocPais8 1', 'LimSupPais9 1',
        'DestRevocPais9 1', 'LimSupPais10 1', 'DestRevocPais10 1', 'LimSupPais11 1',
        'DestRevocPais11 1', 'LimSupPais12 1', 'DestRevocPais12 1', 'LimSupPais13 1',
        'DestRevocPais13 1', 'LimSupPais14 1', 'DestRevocPais14 1', 'LimSupPais15 1',
        'DestRevocPais15 1', 'LimSupPais16 1', 'DestRevocPais16 1', 'LimSupPais17 1',
        'DestRevocPais17 1', 'LimSupPais18 1', 'DestRevocPais18 1', 'LimSupPais19 1',
        'DestRevocPais19 1', 'LimSupPais20 1', 'DestRevocPais20 1', 'LimSupPais21 1',
        'DestRevocPais21 1', 'LimSupPais22 1', 'DestRevocPais22 1', 'LimSupPais23 1',
        'DestRevocPais23 1', 'LimSupPais24 1', 'DestRevocPais24 1', 'LimSupPais25 1',
        'DestRevocPais25 1', 'LimSupPais26 1', 'DestRevocPais26 1', 'LimSupPais27 1',
        'DestRevocPais27 1', 'Agric 1', 'Exentos 1', 'NoEmpresarios 1', 'MasLimEuros 1',
        'TributDestino 1'
    ), (
        2, 'LimSupPais1 2', 'DestRevocPais1 2', 'LimSupPais2 2', 'DestRevocPais2 2',
        'LimSupPais3 2', 'DestRevocPais3 2', 'LimSupPais4 2', 'DestRevocPais4 2', 'LimSupPais5 2',
        'DestRevocPais5 2', 'LimSupPais6 2', 'DestRevocPais6 2', 'LimSupPais7 2',
        'DestRevocPais7 2', 'LimSupPais8 2', 'DestRevocPais8 2', 'LimSupPais9 2',
        'DestRevocPais9 2', 'LimSupPais10 2', 'DestRevocPais10 2', 'LimSupPais11 2',
        'DestRevocPais11 2', 'LimSupPais12 2', 'DestRevocPais12 2', 'LimSupPais13 2',
        'DestRevocPais13 2', 'LimSupPais14 2', 'DestRevocPais14 2', 'LimSupPais15 2',
        'DestRevocPais15 2', 'LimSupPais16 2', 'DestRevocPais16 2', 'LimSupPais17 2',
        'DestRevocPais17 2', 'LimSupPais18 2', 'DestRevocPais18 2', 'LimSupPais19 2',
        'DestRevocPais19 2', 'LimSupPais20 2', 'DestRevocPais20 2', 'LimSupPais21 2',
        'DestRevocPais21 2', 'LimSupPais22 2', 'DestRevocPais22 2', 'LimSupPais23 2',
        'DestRevocPais23 2', 'LimSupPais24 2', 'DestRevocPais24 2', 'LimSupPais25 2',
        'DestRevocPais25 2', 'LimSupPais26 2', 'DestRevocPais26 2', 'LimSupPais27 2',
        'DestRevocPais27 2', 'Agric 2', 'Exentos 2', 'NoEmpresarios 2', 'MasLimEuros 2',
        'TributDestino 2'
    ), (
        3, '', '', '', '', '', '', '', '', '', '', '', '', '', '', '', '', '', '', '', '', '', '',
        '', '', '', '', '', '', '', '', '', '', '', '', '', '', '', '', '', '', '', '', '', '', '',
        '', '', '', '', '', '', '', '', '', '', '', '', '', ''
    );

CREATE TABLE "TAnexoII" (
    csde INTEGER PRIMARY KEY, "DireccionDom" TEXT NOT NULL DEFAULT '',
    "PoblacionDom" TEXT NOT NULL DEFAULT '', "Nacionalidad" TEXT NOT NULL DEFAULT '',
    "FormaJuridica" TEXT NOT NULL DEFAULT '', "TerritorioHistorico" TEXT NOT NULL DEFAULT '',
    "ModalidadEstablecimiento" TEXT NOT NULL DEFAULT '',
    "OtrosEstablecimientos" TEXT NOT NULL DEFAULT '', "NIFRepresentante" TEXT NOT NULL DEFAULT '',
    "NombreRepresentante" TEXT NOT NULL DEFAULT '',
    "NacionalidadRepresentante" TEXT NOT NULL DEFAULT '',
    "DomicilioRepresentante" TEXT NOT NULL DEFAULT '', "CodigoMunicipio" INTEGER NOT NULL DEFAULT 0,
    "NombreMunicipio" TEXT NOT NULL DEFAULT '', "CodigoProvincia" INTEGER NOT NULL DEFAULT 0,
    "Obligado" TEXT NOT NULL DEFAULT '', "Establecimientos" TEXT NOT NULL DEFAULT '',
    "Aplicacion" TEXT NOT NULL DEFAULT '', "OpcionApl" TEXT NOT NULL DEFAULT '',
    "PORCENTAJE" INTEGER NOT NULL DEFAULT 0
) STRICT;
INSERT INTO TAnexoII VALUES
    (
        1, 'DireccionDom 1', 'PoblacionDom 1', 'Nacionalidad 1', 'FormaJuridica 1',
        'TerritorioHistorico 1', 'ModalidadEstablecimiento 1', 'OtrosEstablecimientos 1',
        'NIFRepresentante 1', 'NombreRepresentante 1', 'NacionalidadRepresentante 1',
        'DomicilioRepresentante 1', 1011, 'NombreMunicipio 1', 1013, 'Obligado 1',
        'Establecimientos 1', 'Aplicacion 1', 'OpcionApl 1', 1018
    ), (
        2, 'DireccionDom 2', 'PoblacionDom 2', 'Nacionalidad 2', 'FormaJuridica 2',
        'TerritorioHistorico 2', 'ModalidadEstablecimiento 2', 'OtrosEstablecimientos 2',
        'NIFRepresentante 2', 'NombreRepresentante 2', 'NacionalidadRepresentante 2',
        'DomicilioRepresentante 2', 2011, 'NombreMunicipio 2', 2013, 'Obligado 2',
        'Establecimientos 2', 'Aplicacion 2', 'OpcionApl 2', 2018
    ), (
        3, '', '', '', '', '', '', '', '', '', '', '', 0, '', 0, '', '', '', '', 0
    );

CREATE TABLE "TParticipes" (
    "cspa" INTEGER PRIMARY KEY AUTOINCREMENT, "csde" INTEGER NOT NULL DEFAULT 0,
    "DNI" TEXT NOT NULL DEFAULT ' ', "NOMBRE" TEXT NOT NULL DEFAULT ' ',
    "SiglasDom" TEXT NOT NULL DEFAULT ' ', "NombreVia" TEXT NOT NULL DEFAULT ' ',
    "Numero" INTEGER NOT NULL DEFAULT 0, "Letra" TEXT NOT NULL DEFAULT ' ',
    "Escalera" TEXT NOT NULL DEFAULT ' ', "Piso" TEXT NOT NULL DEFAULT ' ',
    "Mano" TEXT NOT NULL DEFAULT ' ', "Telefono" INTEGER NOT NULL DEFAULT 0,
    "CodPostal" INTEGER NOT NULL DEFAULT 0, "CodMun" INTEGER NOT NULL DEFAULT 0,
    "NombMun" TEXT NOT NULL DEFAULT '', "PorcenPart" REAL NOT NULL DEFAULT 0,
    "EdIRPF" TEXT NOT NULL DEFAULT ' ', "EqIRPF" TEXT NOT NULL DEFAULT ' ',
    "SimplifIVA" TEXT NOT NULL DEFAULT ' ', "Agric" TEXT NOT NULL DEFAULT ' '
) STRICT;
INSERT INTO TParticipes VALUES
    (
        2, 2, '12345672A', 'Zubia, Jon ', ' ', ' ', 2006, ' ', ' ', 'X', ' ', 2011, 2012, 2013,
        'NombMun 2', 25.25, ' ', ' ', 'X', ' '
    ), (
        3, 2, '12345673B', 'Ibáñez, Ane', ' ', ' ', 3006, ' ', ' ', 'X', ' ', 3011, 3012, 3013,
        'NombMun 3', 37.75, ' ', ' ', 'X', ' '
    ), (
        4, 3, '12345674A', 'Zubia, Jon ', ' ', ' ', 4006, ' ', ' ', 'X', ' ', 4011, 4012, 4013,
        'NombMun 4', 50.25, ' ', ' ', 'X', ' '
    );
CREATE INDEX IParticipes ON TParticipes (csde, cspa);

CREATE TABLE "TParticipesAux" (
    declaracion INTEGER NOT NULL, posicion INTEGER NOT NULL, "cspa" INTEGER NOT NULL DEFAULT 0,
    "csde" INTEGER NOT NULL DEFAULT 0, "DNI" TEXT NOT NULL DEFAULT ' ',
    "NOMBRE" TEXT NOT NULL DEFAULT ' ', "SiglasDom" TEXT NOT NULL DEFAULT ' ',
    "NombreVia" TEXT NOT NULL DEFAULT ' ', "Numero" INTEGER NOT NULL DEFAULT 0,
    "Letra" TEXT NOT NULL DEFAULT ' ', "Escalera" TEXT NOT NULL DEFAULT ' ',
    "Piso" TEXT NOT NULL DEFAULT ' ', "Mano" TEXT NOT NULL DEFAULT ' ',
    "Telefono" INTEGER NOT NULL DEFAULT 0, "CodPostal" INTEGER NOT NULL DEFAULT 0,
    "CodMun" INTEGER NOT NULL DEFAULT 0, "NombMun" TEXT NOT NULL DEFAULT '',
    "PorcenPart" REAL NOT NULL DEFAULT 0, "EdIRPF" TEXT NOT NULL DEFAULT ' ',
    "EqIRPF" TEXT NOT NULL DEFAULT ' ', "SimplifIVA" TEXT NOT NULL DEFAULT ' ',
    "Agric" TEXT NOT NULL DEFAULT ' ', PRIMARY KEY (declaracion, posicion)
) STRICT;
INSERT INTO TParticipesAux VALUES
    (
        2, 0, 2, 2, '12345672A', 'Zubia, Jon ', ' ', ' ', 2006, ' ', ' ', 'X', ' ', 2011, 2012,
        2013, 'NombMun 2', 25.25, ' ', ' ', 'X', ' '
    ), (
        2, 1, 3, 2, '12345673B', 'Ibáñez, Ane', ' ', ' ', 3006, ' ', ' ', 'X', ' ', 3011, 3012,
        3013, 'NombMun 3', 37.75, ' ', ' ', 'X', ' '
    );

CREATE TABLE TGENERAL (
    IDI TEXT NOT NULL, ActOnline INTEGER NOT NULL, VersionOrden TEXT NOT NULL
) STRICT;
INSERT INTO TGENERAL VALUES ('E', 1, '153.120.42.0');

DELETE FROM sqlite_sequence;
INSERT INTO sqlite_sequence VALUES ('TDeclaraciones', 4), ('TParticipes', 4);
COMMIT;
