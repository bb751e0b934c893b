// The geographic systems that GeoTIFF tags name by number: longitude and latitude in degrees from Greenwich. Numbers
// are those of the EPSG registry; printed by tests/data/geotiff/make_tables.py.
#pragma once

#include <array>
#include <cstdint>

namespace ZrProj::GeoTIFF {

struct GeographicRow {
    std::uint16_t code;      // of the geographic system
    std::uint16_t datum;     // of its datum
    std::uint16_t ellipsoid; // of its ellipsoid
};

// clang-format off
inline constexpr auto geographicTable = std::to_array<GeographicRow>({
    GeographicRow{3819, 1024, 7004}, // HD1909
    GeographicRow{3821, 1025, 7050}, // TWD67
    GeographicRow{3824, 1026, 7019}, // TWD97
    GeographicRow{3889, 1029, 7019}, // IGRS
    GeographicRow{3906, 1031, 7004}, // MGI 1901
    GeographicRow{4001, 6001, 7001}, // Unknown datum based upon the Airy 1830 ellipsoid
    GeographicRow{4002, 6002, 7002}, // Unknown datum based upon the Airy Modified 1849 ellipsoid
    GeographicRow{4003, 6003, 7003}, // Unknown datum based upon the Australian National Spheroid
    GeographicRow{4004, 6004, 7004}, // Unknown datum based upon the Bessel 1841 ellipsoid
    GeographicRow{4005, 6005, 7005}, // Unknown datum based upon the Bessel Modified ellipsoid
    GeographicRow{4006, 6006, 7046}, // Unknown datum based upon the Bessel Namibia ellipsoid
    GeographicRow{4007, 6007, 7007}, // Unknown datum based upon the Clarke 1858 ellipsoid
    GeographicRow{4008, 6008, 7008}, // Unknown datum based upon the Clarke 1866 ellipsoid
    GeographicRow{4009, 6009, 7009}, // Unknown datum based upon the Clarke 1866 Michigan ellipsoid
    GeographicRow{4010, 6010, 7010}, // Unknown datum based upon the Clarke 1880 (Benoit) ellipsoid
    GeographicRow{4011, 6011, 7011}, // Unknown datum based upon the Clarke 1880 (IGN) ellipsoid
    GeographicRow{4012, 6012, 7012}, // Unknown datum based upon the Clarke 1880 (RGS) ellipsoid
    GeographicRow{4013, 6013, 7013}, // Unknown datum based upon the Clarke 1880 (Arc) ellipsoid
    GeographicRow{4014, 6014, 7014}, // Unknown datum based upon the Clarke 1880 (SGA 1922) ellipsoid
    GeographicRow{4015, 6015, 7015}, // Unknown datum based upon the Everest 1830 (1937 Adjustment) ellipsoid
    GeographicRow{4016, 6016, 7016}, // Unknown datum based upon the Everest 1830 (1967 Definition) ellipsoid
    GeographicRow{4018, 6018, 7018}, // Unknown datum based upon the Everest 1830 Modified ellipsoid
    GeographicRow{4019, 6019, 7019}, // Unknown datum based upon the GRS 1980 ellipsoid
    GeographicRow{4020, 6020, 7020}, // Unknown datum based upon the Helmert 1906 ellipsoid
    GeographicRow{4021, 6021, 7021}, // Unknown datum based upon the Indonesian National Spheroid
    GeographicRow{4022, 6022, 7022}, // Unknown datum based upon the International 1924 ellipsoid
    GeographicRow{4023, 1032, 7019}, // MOLDREF99
    GeographicRow{4024, 6024, 7024}, // Unknown datum based upon the Krassowsky 1940 ellipsoid
    GeographicRow{4025, 6025, 7025}, // Unknown datum based upon the NWL 9D ellipsoid
    GeographicRow{4027, 6027, 7027}, // Unknown datum based upon the Plessis 1817 ellipsoid
    GeographicRow{4028, 6028, 7028}, // Unknown datum based upon the Struve 1860 ellipsoid
    GeographicRow{4029, 6029, 7029}, // Unknown datum based upon the War Office ellipsoid
    GeographicRow{4030, 6030, 7030}, // Unknown datum based upon the WGS 84 ellipsoid
    GeographicRow{4031, 6031, 7031}, // Unknown datum based upon the GEM 10C ellipsoid
    GeographicRow{4032, 6032, 7032}, // Unknown datum based upon the OSU86F ellipsoid
    GeographicRow{4033, 6033, 7033}, // Unknown datum based upon the OSU91A ellipsoid
    GeographicRow{4034, 6034, 7034}, // Unknown datum based upon the Clarke 1880 ellipsoid
    GeographicRow{4035, 6035, 7035}, // Unknown datum based upon the Authalic Sphere
    GeographicRow{4036, 6036, 7036}, // Unknown datum based upon the GRS 1967 ellipsoid
    GeographicRow{4041, 6041, 7041}, // Unknown datum based upon the Average Terrestrial System 1977 ellipsoid
    GeographicRow{4042, 6042, 7042}, // Unknown datum based upon the Everest (1830 Definition) ellipsoid
    GeographicRow{4043, 6043, 7043}, // Unknown datum based upon the WGS 72 ellipsoid
    GeographicRow{4044, 6044, 7044}, // Unknown datum based upon the Everest 1830 (1962 Definition) ellipsoid
    GeographicRow{4045, 6045, 7045}, // Unknown datum based upon the Everest 1830 (1975 Definition) ellipsoid
    GeographicRow{4046, 1033, 7019}, // RGRDC 2005
    GeographicRow{4047, 6047, 7048}, // Unspecified datum based upon the GRS 1980 Authalic Sphere
    GeographicRow{4052, 6052, 7052}, // Unspecified datum based upon the Clarke 1866 Authalic Sphere
    GeographicRow{4053, 6053, 7057}, // Unspecified datum based upon the International 1924 Authalic Sphere
    GeographicRow{4054, 6054, 7058}, // Unspecified datum based upon the Hughes 1980 ellipsoid
    GeographicRow{4055, 6055, 7059}, // Popular Visualisation CRS
    GeographicRow{4075, 1034, 7019}, // SREF98
    GeographicRow{4081, 1035, 7019}, // REGCAN95
    GeographicRow{4120, 6120, 7004}, // Greek
    GeographicRow{4121, 6121, 7019}, // GGRS87
    GeographicRow{4122, 6122, 7041}, // ATS77
    GeographicRow{4123, 6123, 7022}, // KKJ
    GeographicRow{4124, 6124, 7004}, // RT90
    GeographicRow{4125, 6125, 7004}, // Samboja
    GeographicRow{4126, 6126, 7019}, // LKS94 (ETRS89)
    GeographicRow{4127, 6127, 7008}, // Tete
    GeographicRow{4128, 6128, 7008}, // Madzansua
    GeographicRow{4129, 6129, 7008}, // Observatario
    GeographicRow{4130, 6130, 7030}, // Moznet
    GeographicRow{4131, 6131, 7015}, // Indian 1960
    GeographicRow{4132, 6132, 7012}, // FD58
    GeographicRow{4133, 6133, 7019}, // EST92
    GeographicRow{4134, 6134, 7012}, // PSD93
    GeographicRow{4135, 6135, 7008}, // Old Hawaiian
    GeographicRow{4136, 6136, 7008}, // St. Lawrence Island
    GeographicRow{4137, 6137, 7008}, // St. Paul Island
    GeographicRow{4138, 6138, 7008}, // St. George Island
    GeographicRow{4139, 6139, 7008}, // Puerto Rico
    GeographicRow{4140, 6140, 7019}, // NAD83(CSRS98)
    GeographicRow{4141, 6141, 7019}, // Israel 1993
    GeographicRow{4142, 6142, 7012}, // Locodjo 1965
    GeographicRow{4143, 6143, 7012}, // Abidjan 1987
    GeographicRow{4144, 6144, 7015}, // Kalianpur 1937
    GeographicRow{4145, 6145, 7044}, // Kalianpur 1962
    GeographicRow{4146, 6146, 7045}, // Kalianpur 1975
    GeographicRow{4147, 6147, 7024}, // Hanoi 1972
    GeographicRow{4148, 6148, 7030}, // Hartebeesthoek94
    GeographicRow{4149, 6149, 7004}, // CH1903
    GeographicRow{4150, 6150, 7004}, // CH1903+
    GeographicRow{4151, 6151, 7019}, // CHTRS95
    GeographicRow{4152, 6152, 7019}, // NAD83(HARN)
    GeographicRow{4153, 6153, 7022}, // Rassadiran
    GeographicRow{4154, 6154, 7022}, // ED50(ED77)
    GeographicRow{4155, 6155, 7011}, // Dabola 1981
    GeographicRow{4156, 6156, 7004}, // S-JTSK
    GeographicRow{4157, 6157, 7007}, // Mount Dillon
    GeographicRow{4158, 6158, 7022}, // Naparima 1955
    GeographicRow{4159, 6159, 7022}, // ELD79
    GeographicRow{4160, 6160, 7022}, // Chos Malal 1914
    GeographicRow{4161, 6161, 7022}, // Pampa del Castillo
    GeographicRow{4162, 6162, 7004}, // Korean 1985
    GeographicRow{4163, 6163, 7030}, // Yemen NGN96
    GeographicRow{4164, 6164, 7024}, // South Yemen
    GeographicRow{4165, 6165, 7022}, // Bissau
    GeographicRow{4166, 6166, 7030}, // Korean 1995
    GeographicRow{4167, 6167, 7019}, // NZGD2000
    GeographicRow{4168, 6168, 7029}, // Accra
    GeographicRow{4169, 6169, 7008}, // American Samoa 1962
    GeographicRow{4170, 6170, 7019}, // SIRGAS 1995
    GeographicRow{4171, 6171, 7019}, // RGF93 v1
    GeographicRow{4172, 6172, 7019}, // POSGAR
    GeographicRow{4173, 6173, 7019}, // IRENET95
    GeographicRow{4174, 6174, 7029}, // Sierra Leone 1924
    GeographicRow{4175, 6175, 7012}, // Sierra Leone 1968
    GeographicRow{4176, 6176, 7019}, // Australian Antarctic
    GeographicRow{4178, 6178, 7024}, // Pulkovo 1942(83)
    GeographicRow{4179, 6179, 7024}, // Pulkovo 1942(58)
    GeographicRow{4180, 6180, 7019}, // EST97
    GeographicRow{4181, 6181, 7022}, // LUREF
    GeographicRow{4182, 6182, 7022}, // Azores Occidental 1939
    GeographicRow{4183, 6183, 7022}, // Azores Central 1948
    GeographicRow{4184, 6184, 7022}, // Azores Oriental 1940
    GeographicRow{4185, 6185, 7022}, // Madeira 1936
    GeographicRow{4188, 6188, 7001}, // OSNI 1952
    GeographicRow{4189, 6189, 7019}, // REGVEN
    GeographicRow{4190, 6190, 7019}, // POSGAR 98
    GeographicRow{4191, 6191, 7024}, // Albanian 1987
    GeographicRow{4192, 6192, 7022}, // Douala 1948
    GeographicRow{4193, 6193, 7011}, // Manoca 1962
    GeographicRow{4194, 6194, 7022}, // Qornoq 1927
    GeographicRow{4195, 6195, 7022}, // Scoresbysund 1952
    GeographicRow{4196, 6196, 7022}, // Ammassalik 1958
    GeographicRow{4197, 6197, 7012}, // Garoua
    GeographicRow{4198, 6198, 7012}, // Kousseri
    GeographicRow{4199, 6199, 7022}, // Egypt 1930
    GeographicRow{4200, 6200, 7024}, // Pulkovo 1995
    GeographicRow{4201, 6201, 7012}, // Adindan
    GeographicRow{4202, 6202, 7003}, // AGD66
    GeographicRow{4203, 6203, 7003}, // AGD84
    GeographicRow{4204, 6204, 7022}, // Ain el Abd
    GeographicRow{4205, 6205, 7024}, // Afgooye
    GeographicRow{4206, 6206, 7011}, // Agadez
    GeographicRow{4207, 6207, 7022}, // Lisbon
    GeographicRow{4208, 6208, 7022}, // Aratu
    GeographicRow{4209, 6209, 7013}, // Arc 1950
    GeographicRow{4210, 6210, 7012}, // Arc 1960
    GeographicRow{4211, 6211, 7004}, // Batavia
    GeographicRow{4212, 6212, 7012}, // Barbados 1938
    GeographicRow{4213, 6213, 7011}, // Beduaram
    GeographicRow{4214, 6214, 7024}, // Beijing 1954
    GeographicRow{4215, 6215, 7022}, // BD50
    GeographicRow{4216, 6216, 7008}, // Bermuda 1957
    GeographicRow{4218, 6218, 7022}, // Bogota 1975
    GeographicRow{4219, 6219, 7004}, // Bukit Rimpah
    GeographicRow{4220, 6220, 7012}, // Camacupa 1948
    GeographicRow{4221, 6221, 7022}, // Campo Inchauspe
    GeographicRow{4222, 6222, 7013}, // Cape
    GeographicRow{4223, 6223, 7011}, // Carthage
    GeographicRow{4224, 6224, 7022}, // Chua
    GeographicRow{4225, 6225, 7022}, // Corrego Alegre 1970-72
    GeographicRow{4226, 6226, 7011}, // Cote d'Ivoire
    GeographicRow{4227, 6227, 7011}, // Deir ez Zor
    GeographicRow{4228, 6228, 7011}, // Douala
    GeographicRow{4229, 6229, 7020}, // Egypt 1907
    GeographicRow{4230, 6230, 7022}, // ED50
    GeographicRow{4231, 6231, 7022}, // ED87
    GeographicRow{4232, 6232, 7012}, // Fahud
    GeographicRow{4233, 6233, 7022}, // Gandajika 1970
    GeographicRow{4234, 6234, 7011}, // Garoua
    GeographicRow{4235, 6235, 7022}, // Guyane Francaise
    GeographicRow{4236, 6236, 7022}, // Hu Tzu Shan 1950
    GeographicRow{4237, 6237, 7036}, // HD72
    GeographicRow{4238, 6238, 7021}, // ID74
    GeographicRow{4239, 6239, 7015}, // Indian 1954
    GeographicRow{4240, 6240, 7015}, // Indian 1975
    GeographicRow{4241, 6241, 7034}, // Jamaica 1875
    GeographicRow{4242, 6242, 7008}, // JAD69
    GeographicRow{4243, 6243, 7042}, // Kalianpur 1880
    GeographicRow{4244, 6244, 7015}, // Kandawala
    GeographicRow{4245, 6245, 7018}, // Kertau 1968
    GeographicRow{4246, 6246, 7012}, // KOC
    GeographicRow{4247, 6247, 7022}, // La Canoa
    GeographicRow{4248, 6248, 7022}, // PSAD56
    GeographicRow{4249, 6249, 7022}, // Lake
    GeographicRow{4250, 6250, 7012}, // Leigon
    GeographicRow{4251, 6251, 7012}, // Liberia 1964
    GeographicRow{4252, 6252, 7011}, // Lome
    GeographicRow{4253, 6253, 7008}, // Luzon 1911
    GeographicRow{4254, 6254, 7022}, // Hito XVIII 1963
    GeographicRow{4255, 6255, 7022}, // Herat North
    GeographicRow{4256, 6256, 7012}, // Mahe 1971
    GeographicRow{4257, 6257, 7004}, // Makassar
    GeographicRow{4258, 6258, 7019}, // ETRS89
    GeographicRow{4259, 6259, 7022}, // Malongo 1987
    GeographicRow{4260, 6260, 7012}, // Manoca
    GeographicRow{4261, 6261, 7011}, // Merchich
    GeographicRow{4262, 6262, 7004}, // Massawa
    GeographicRow{4263, 6263, 7012}, // Minna
    GeographicRow{4264, 6264, 7022}, // Mhast
    GeographicRow{4265, 6265, 7022}, // Monte Mario
    GeographicRow{4266, 6266, 7011}, // M'poraloko
    GeographicRow{4267, 6267, 7008}, // NAD27
    GeographicRow{4268, 6268, 7009}, // NAD27 Michigan
    GeographicRow{4269, 6269, 7019}, // NAD83
    GeographicRow{4270, 6270, 7012}, // Nahrwan 1967
    GeographicRow{4271, 6271, 7022}, // Naparima 1972
    GeographicRow{4272, 6272, 7022}, // NZGD49
    GeographicRow{4273, 6273, 7005}, // NGO 1948
    GeographicRow{4274, 6274, 7022}, // Datum 73
    GeographicRow{4275, 6275, 7011}, // NTF
    GeographicRow{4276, 6276, 7025}, // NSWC 9Z-2
    GeographicRow{4277, 6277, 7001}, // OSGB36
    GeographicRow{4278, 6278, 7001}, // OSGB70
    GeographicRow{4279, 6279, 7001}, // OS(SN)80
    GeographicRow{4280, 6280, 7004}, // Padang
    GeographicRow{4281, 6281, 7010}, // Palestine 1923
    GeographicRow{4282, 6282, 7011}, // Pointe Noire
    GeographicRow{4283, 6283, 7019}, // GDA94
    GeographicRow{4284, 6284, 7024}, // Pulkovo 1942
    GeographicRow{4285, 6285, 7022}, // Qatar 1974
    GeographicRow{4286, 6286, 7020}, // Qatar 1948
    GeographicRow{4287, 6287, 7022}, // Qornoq
    GeographicRow{4288, 6288, 7022}, // Loma Quintana
    GeographicRow{4289, 6289, 7004}, // Amersfoort
    GeographicRow{4291, 6291, 7036}, // SAD69
    GeographicRow{4292, 6292, 7022}, // Sapper Hill 1943
    GeographicRow{4293, 6293, 7046}, // Schwarzeck
    GeographicRow{4294, 6294, 7004}, // Segora
    GeographicRow{4295, 6295, 7004}, // Serindung
    GeographicRow{4296, 6296, 7011}, // Sudan
    GeographicRow{4297, 6297, 7022}, // Tananarive
    GeographicRow{4298, 6298, 7016}, // Timbalai 1948
    GeographicRow{4299, 6299, 7002}, // TM65
    GeographicRow{4300, 6300, 7002}, // TM75
    GeographicRow{4301, 6301, 7004}, // Tokyo
    GeographicRow{4302, 6302, 7007}, // Trinidad 1903
    GeographicRow{4303, 6303, 7020}, // TC(1948)
    GeographicRow{4304, 6304, 7011}, // Voirol 1875
    GeographicRow{4306, 6306, 7004}, // Bern 1938
    GeographicRow{4307, 6307, 7012}, // Nord Sahara 1959
    GeographicRow{4308, 6308, 7004}, // RT38
    GeographicRow{4309, 6309, 7022}, // Yacare
    GeographicRow{4310, 6310, 7011}, // Yoff
    GeographicRow{4311, 6311, 7022}, // Zanderij
    GeographicRow{4312, 6312, 7004}, // MGI
    GeographicRow{4313, 6313, 7022}, // BD72
    GeographicRow{4314, 6314, 7004}, // DHDN
    GeographicRow{4315, 6315, 7011}, // Conakry 1905
    GeographicRow{4316, 6316, 7022}, // Dealul Piscului 1930
    GeographicRow{4317, 6317, 7024}, // Dealul Piscului 1970
    GeographicRow{4318, 6318, 7030}, // NGN
    GeographicRow{4319, 6319, 7019}, // KUDAMS
    GeographicRow{4322, 6322, 7043}, // WGS 72
    GeographicRow{4324, 6324, 7043}, // WGS 72BE
    GeographicRow{4326, 6326, 7030}, // WGS 84
    GeographicRow{4463, 1038, 7019}, // RGSPM06
    GeographicRow{4470, 1036, 7019}, // RGM04
    GeographicRow{4475, 1037, 7022}, // Cadastre 1997
    GeographicRow{4483, 1042, 7019}, // Mexico ITRF92
    GeographicRow{4490, 1043, 1024}, // China Geodetic Coordinate System 2000
    GeographicRow{4555, 1045, 7024}, // New Beijing
    GeographicRow{4558, 1047, 7019}, // RRAF 1991
    GeographicRow{4600, 6600, 7012}, // Anguilla 1957
    GeographicRow{4601, 6601, 7012}, // Antigua 1943
    GeographicRow{4602, 6602, 7012}, // Dominica 1945
    GeographicRow{4603, 6603, 7012}, // Grenada 1953
    GeographicRow{4604, 6604, 7012}, // Montserrat 1958
    GeographicRow{4605, 6605, 7012}, // St. Kitts 1955
    GeographicRow{4606, 6606, 7012}, // St. Lucia 1955
    GeographicRow{4607, 6607, 7012}, // St. Vincent 1945
    GeographicRow{4608, 6608, 7008}, // NAD27(76)
    GeographicRow{4609, 6609, 7008}, // NAD27(CGQ77)
    GeographicRow{4610, 6610, 7049}, // Xian 1980
    GeographicRow{4611, 6611, 7022}, // Hong Kong 1980
    GeographicRow{4612, 6612, 7019}, // JGD2000
    GeographicRow{4613, 6613, 7004}, // Segara
    GeographicRow{4614, 6614, 7022}, // QND95
    GeographicRow{4615, 6615, 7022}, // Porto Santo
    GeographicRow{4616, 6616, 7022}, // Selvagem Grande
    GeographicRow{4617, 6140, 7019}, // NAD83(CSRS)
    GeographicRow{4618, 6618, 7050}, // SAD69
    GeographicRow{4619, 6619, 7019}, // SWEREF99
    GeographicRow{4620, 6620, 7012}, // Point 58
    GeographicRow{4621, 6621, 7022}, // Fort Marigot
    GeographicRow{4622, 6622, 7022}, // Guadeloupe 1948
    GeographicRow{4623, 6623, 7022}, // CSG67
    GeographicRow{4624, 6624, 7019}, // RGFG95
    GeographicRow{4625, 6625, 7022}, // Martinique 1938
    GeographicRow{4626, 6626, 7022}, // Reunion 1947
    GeographicRow{4627, 6627, 7019}, // RGR92
    GeographicRow{4628, 6628, 7022}, // Tahiti 52
    GeographicRow{4629, 6629, 7022}, // Tahaa 54
    GeographicRow{4630, 6630, 7022}, // IGN72 Nuku Hiva
    GeographicRow{4631, 6631, 7022}, // K0 1949
    GeographicRow{4632, 6632, 7022}, // Combani 1950
    GeographicRow{4633, 6633, 7022}, // IGN56 Lifou
    GeographicRow{4634, 6634, 7022}, // IGN72 Grand Terre
    GeographicRow{4635, 6635, 7022}, // ST87 Ouvea
    GeographicRow{4636, 6636, 7022}, // Petrels 1972
    GeographicRow{4637, 6637, 7022}, // Perroud 1950
    GeographicRow{4638, 6638, 7008}, // Saint Pierre et Miquelon 1950
    GeographicRow{4639, 6639, 7022}, // MOP78
    GeographicRow{4640, 6640, 7030}, // RRAF 1991
    GeographicRow{4641, 6641, 7022}, // IGN53 Mare
    GeographicRow{4642, 6642, 7022}, // ST84 Ile des Pins
    GeographicRow{4643, 6643, 7022}, // ST71 Belep
    GeographicRow{4644, 6644, 7022}, // NEA74 Noumea
    GeographicRow{4645, 6645, 7022}, // RGNC 1991
    GeographicRow{4646, 6646, 7022}, // Grand Comoros
    GeographicRow{4657, 6657, 7051}, // Reykjavik 1900
    GeographicRow{4658, 6658, 7022}, // Hjorsey 1955
    GeographicRow{4659, 6659, 7019}, // ISN93
    GeographicRow{4660, 6660, 7022}, // Helle 1954
    GeographicRow{4661, 6661, 7019}, // LKS92
    GeographicRow{4662, 6634, 7022}, // IGN72 Grande Terre
    GeographicRow{4663, 6663, 7022}, // Porto Santo 1995
    GeographicRow{4664, 6664, 7022}, // Azores Oriental 1995
    GeographicRow{4665, 6665, 7022}, // Azores Central 1995
    GeographicRow{4666, 6666, 7004}, // Lisbon 1890
    GeographicRow{4667, 6667, 7030}, // IKBD-92
    GeographicRow{4668, 6668, 7022}, // ED79
    GeographicRow{4669, 6126, 7019}, // LKS94
    GeographicRow{4670, 6670, 7019}, // IGM95
    GeographicRow{4671, 6671, 7011}, // Voirol 1879
    GeographicRow{4672, 6672, 7022}, // Chatham Islands 1971
    GeographicRow{4673, 6673, 7022}, // Chatham Islands 1979
    GeographicRow{4674, 6674, 7019}, // SIRGAS 2000
    GeographicRow{4675, 6675, 7008}, // Guam 1963
    GeographicRow{4676, 6676, 7024}, // Vientiane 1982
    GeographicRow{4677, 6677, 7024}, // Lao 1993
    GeographicRow{4678, 6678, 7024}, // Lao 1997
    GeographicRow{4679, 6679, 7012}, // Jouik 1961
    GeographicRow{4680, 6680, 7012}, // Nouakchott 1965
    GeographicRow{4681, 6681, 7012}, // Mauritania 1999
    GeographicRow{4682, 6682, 7015}, // Gulshan 303
    GeographicRow{4683, 6683, 7008}, // PRS92
    GeographicRow{4684, 6684, 7022}, // Gan 1970
    GeographicRow{4685, 6685, 7022}, // Gandajika
    GeographicRow{4686, 6686, 7019}, // MAGNA-SIRGAS
    GeographicRow{4687, 6687, 7019}, // RGPF
    GeographicRow{4688, 6688, 7022}, // Fatu Iva 72
    GeographicRow{4689, 6689, 7022}, // IGN63 Hiva Oa
    GeographicRow{4690, 6690, 7022}, // Tahiti 79
    GeographicRow{4691, 6691, 7022}, // Moorea 87
    GeographicRow{4692, 6692, 7022}, // Maupiti 83
    GeographicRow{4693, 6693, 7030}, // Nakhl-e Ghanem
    GeographicRow{4694, 6694, 7030}, // POSGAR 94
    GeographicRow{4695, 6695, 7008}, // Katanga 1955
    GeographicRow{4696, 6696, 7012}, // Kasai 1953
    GeographicRow{4697, 6697, 7012}, // IGC 1962 6th Parallel South
    GeographicRow{4698, 6698, 7022}, // IGN 1962 Kerguelen
    GeographicRow{4699, 6699, 7012}, // Le Pouce 1934
    GeographicRow{4700, 6700, 7012}, // IGN Astro 1960
    GeographicRow{4701, 6701, 7012}, // IGCB 1955
    GeographicRow{4702, 6702, 7019}, // Mauritania 1999
    GeographicRow{4703, 6703, 7012}, // Mhast 1951
    GeographicRow{4704, 6704, 7022}, // Mhast (onshore)
    GeographicRow{4705, 6705, 7022}, // Mhast (offshore)
    GeographicRow{4706, 6706, 7020}, // Egypt Gulf of Suez S-650 TL
    GeographicRow{4707, 6707, 7022}, // Tern Island 1961
    GeographicRow{4708, 6708, 7003}, // Cocos Islands 1965
    GeographicRow{4709, 6709, 7022}, // Iwo Jima 1945
    GeographicRow{4710, 6710, 7022}, // Astro DOS 71
    GeographicRow{4711, 6711, 7022}, // Marcus Island 1952
    GeographicRow{4712, 6712, 7022}, // Ascension Island 1958
    GeographicRow{4713, 6713, 7012}, // Ayabelle Lighthouse
    GeographicRow{4714, 6714, 7022}, // Bellevue
    GeographicRow{4715, 6715, 7022}, // Camp Area Astro
    GeographicRow{4716, 6716, 7022}, // Phoenix Islands 1966
    GeographicRow{4717, 6717, 7008}, // Cape Canaveral
    GeographicRow{4718, 6718, 7022}, // Solomon 1968
    GeographicRow{4719, 6719, 7022}, // Easter Island 1967
    GeographicRow{4720, 6720, 7043}, // Fiji 1986
    GeographicRow{4721, 6721, 7022}, // Fiji 1956
    GeographicRow{4722, 6722, 7022}, // South Georgia 1968
    GeographicRow{4723, 6723, 7008}, // GCGD59
    GeographicRow{4724, 6724, 7022}, // Diego Garcia 1969
    GeographicRow{4725, 6725, 7022}, // Johnston Island 1961
    GeographicRow{4726, 6726, 7008}, // SIGD61
    GeographicRow{4727, 6727, 7022}, // Midway 1961
    GeographicRow{4728, 6728, 7022}, // PN84
    GeographicRow{4729, 6729, 7022}, // Pitcairn 1967
    GeographicRow{4730, 6730, 7022}, // Santo 1965
    GeographicRow{4731, 6731, 7012}, // Viti Levu 1916
    GeographicRow{4732, 6732, 7053}, // Marshall Islands 1960
    GeographicRow{4733, 6733, 7022}, // Wake Island 1952
    GeographicRow{4734, 6734, 7022}, // Tristan 1968
    GeographicRow{4735, 6735, 7022}, // Kusaie 1951
    GeographicRow{4736, 6736, 7012}, // Deception Island
    GeographicRow{4737, 6737, 7019}, // Korea 2000
    GeographicRow{4738, 6738, 7007}, // Hong Kong 1963
    GeographicRow{4739, 6739, 7022}, // Hong Kong 1963(67)
    GeographicRow{4740, 6740, 7054}, // PZ-90
    GeographicRow{4741, 6741, 7022}, // FD54
    GeographicRow{4742, 6742, 7019}, // GDM2000
    GeographicRow{4743, 6743, 7012}, // Karbala 1979
    GeographicRow{4744, 6744, 7012}, // Nahrwan 1934
    GeographicRow{4745, 6745, 7004}, // RD/83
    GeographicRow{4746, 6746, 7004}, // PD/83
    GeographicRow{4747, 6747, 7019}, // GR96
    GeographicRow{4748, 6748, 7055}, // Vanua Levu 1915
    GeographicRow{4749, 6749, 7019}, // RGNC91-93
    GeographicRow{4750, 6750, 7030}, // ST87 Ouvea
    GeographicRow{4751, 6751, 7056}, // Kertau (RSO)
    GeographicRow{4752, 6752, 7055}, // Viti Levu 1912
    GeographicRow{4753, 6753, 7022}, // fk89
    GeographicRow{4754, 6754, 7022}, // LGD2006
    GeographicRow{4755, 6755, 7030}, // DGN95
    GeographicRow{4756, 6756, 7030}, // VN-2000
    GeographicRow{4757, 6757, 7030}, // SVY21
    GeographicRow{4758, 6758, 7030}, // JAD2001
    GeographicRow{4759, 6759, 7019}, // NAD83(NSRS2007)
    GeographicRow{4760, 6760, 7025}, // WGS 66
    GeographicRow{4761, 6761, 7019}, // HTRS96
    GeographicRow{4762, 6762, 7030}, // BDA2000
    GeographicRow{4763, 6763, 7030}, // Pitcairn 2006
    GeographicRow{4764, 6764, 7019}, // RSRGD2000
    GeographicRow{4765, 6765, 7019}, // Slovenia 1996
    GeographicRow{4823, 1044, 7022}, // Sao Tome
    GeographicRow{4824, 1046, 7022}, // Principe
    GeographicRow{5013, 1041, 7019}, // PTRA08
    GeographicRow{5132, 1048, 7004}, // Tokyo 1892
    GeographicRow{5228, 1052, 7004}, // S-JTSK/05
    GeographicRow{5233, 1053, 7015}, // SLD99
    GeographicRow{5246, 1056, 7019}, // GDBD2009
    GeographicRow{5252, 1057, 7019}, // TUREF
    GeographicRow{5264, 1058, 7019}, // DRUKREF 03
    GeographicRow{5324, 1060, 7019}, // ISN2004
    GeographicRow{5340, 1062, 7030}, // POSGAR 2007
    GeographicRow{5354, 1063, 7019}, // MARGEN
    GeographicRow{5360, 1064, 7019}, // SIRGAS-Chile 2002
    GeographicRow{5365, 1065, 7030}, // CR05
    GeographicRow{5371, 1066, 7019}, // MACARIO SOLIS
    GeographicRow{5373, 1067, 7019}, // Peru96
    GeographicRow{5381, 1068, 7030}, // SIRGAS-ROU98
    GeographicRow{5393, 1069, 7019}, // SIRGAS_ES2007.8
    GeographicRow{5451, 1070, 7008}, // Ocotepeque 1935
    GeographicRow{5464, 1071, 7007}, // Sibun Gorge 1922
    GeographicRow{5467, 1072, 7008}, // Panama-Colon 1911
    GeographicRow{5489, 1073, 7019}, // RGAF09
    GeographicRow{5524, 1074, 7022}, // Corrego Alegre 1961
    GeographicRow{5527, 1075, 7050}, // SAD69(96)
    GeographicRow{5546, 1076, 7019}, // PNG94
    GeographicRow{5561, 1077, 7024}, // UCS-2000
    GeographicRow{5593, 1078, 7019}, // FEH2010
    GeographicRow{5681, 1081, 7004}, // DB_REF
    GeographicRow{5886, 1095, 7019}, // TGD2005
    GeographicRow{6135, 1100, 7019}, // CIGD11
    GeographicRow{6207, 1111, 7015}, // Nepal 1981
    GeographicRow{6311, 1112, 7030}, // CGRS93
    GeographicRow{6318, 1116, 7019}, // NAD83(2011)
    GeographicRow{6322, 1117, 7019}, // NAD83(PA11)
    GeographicRow{6325, 1118, 7019}, // NAD83(MA11)
    GeographicRow{6365, 1120, 7019}, // Mexico ITRF2008
    GeographicRow{6668, 1128, 7019}, // JGD2011
    GeographicRow{6706, 1132, 7019}, // RDN2008
    GeographicRow{6783, 1133, 7019}, // NAD83(CORS96)
    GeographicRow{6881, 1135, 7012}, // Aden 1925
    GeographicRow{6882, 1137, 7012}, // Bekaa Valley 1920
    GeographicRow{6883, 1136, 7022}, // Bioko
    GeographicRow{6892, 1138, 7012}, // South East Island 1943
    GeographicRow{6894, 1139, 7012}, // Gambia
    GeographicRow{6980, 1143, 7019}, // IGD05
    GeographicRow{6983, 1142, 7019}, // IG05 Intermediate CRS
    GeographicRow{6987, 1145, 7019}, // IGD05/12
    GeographicRow{6990, 1144, 7019}, // IG05/12 Intermediate CRS
    GeographicRow{7073, 1113, 7019}, // RGTAAF07
    GeographicRow{7136, 1114, 7030}, // IGD05
    GeographicRow{7139, 1115, 7030}, // IGD05/12
    GeographicRow{7373, 1147, 7019}, // ONGD14
    GeographicRow{7683, 1159, 1025}, // GSK-2011
    GeographicRow{7686, 1160, 7019}, // Kyrg-06
    GeographicRow{7798, 1167, 7019}, // BGS2005
    GeographicRow{7844, 1168, 7019}, // GDA2020
    GeographicRow{7881, 1173, 7030}, // St. Helena Tritan
    GeographicRow{7886, 1174, 7019}, // SHGD2015
    GeographicRow{8086, 1187, 7019}, // ISN2016
    GeographicRow{8232, 1192, 7019}, // NAD83(CSRS96)
    GeographicRow{8237, 1193, 7019}, // NAD83(CSRS)v2
    GeographicRow{8240, 1194, 7019}, // NAD83(CSRS)v3
    GeographicRow{8246, 1195, 7019}, // NAD83(CSRS)v4
    GeographicRow{8249, 1196, 7019}, // NAD83(CSRS)v5
    GeographicRow{8252, 1197, 7019}, // NAD83(CSRS)v6
    GeographicRow{8255, 1198, 7019}, // NAD83(CSRS)v7
    GeographicRow{8351, 1201, 7004}, // S-JTSK [JTSK03]
    GeographicRow{8427, 1209, 7019}, // Hong Kong Geodetic CS
    GeographicRow{8428, 1207, 7022}, // Macao 1920
    GeographicRow{8431, 1208, 7019}, // Macao 2008
    GeographicRow{8545, 1212, 7019}, // NAD83(HARN Corrected)
    GeographicRow{8685, 1214, 7019}, // SRB_ETRS89
    GeographicRow{8694, 1217, 7012}, // Camacupa 2015
    GeographicRow{8699, 1220, 7019}, // RSAO13
    GeographicRow{8818, 1218, 7019}, // MTRF-2000
    GeographicRow{8860, 1211, 7019}, // NAD83(FBN)
    GeographicRow{8888, 1166, 7030}, // WGS 84 (Transit)
    GeographicRow{8900, 1223, 7019}, // RGWF96
    GeographicRow{8907, 1225, 7019}, // CR-SIRGAS
    GeographicRow{8949, 1243, 7019}, // SIRGAS-Chile 2010
    GeographicRow{8972, 1227, 7019}, // SIRGAS-CON DGF00P01
    GeographicRow{8973, 1228, 7019}, // SIRGAS-CON DGF01P01
    GeographicRow{8974, 1229, 7019}, // SIRGAS-CON DGF01P02
    GeographicRow{8975, 1230, 7019}, // SIRGAS-CON DGF02P01
    GeographicRow{8976, 1231, 7019}, // SIRGAS-CON DGF04P01
    GeographicRow{8977, 1232, 7019}, // SIRGAS-CON DGF05P01
    GeographicRow{8978, 1233, 7019}, // SIRGAS-CON DGF06P01
    GeographicRow{8979, 1234, 7019}, // SIRGAS-CON DGF07P01
    GeographicRow{8980, 1235, 7019}, // SIRGAS-CON DGF08P01
    GeographicRow{8981, 1236, 7019}, // SIRGAS-CON SIR09P01
    GeographicRow{8982, 1237, 7019}, // SIRGAS-CON SIR10P01
    GeographicRow{8983, 1238, 7019}, // SIRGAS-CON SIR11P01
    GeographicRow{8984, 1239, 7019}, // SIRGAS-CON SIR13P01
    GeographicRow{8985, 1240, 7019}, // SIRGAS-CON SIR14P01
    GeographicRow{8986, 1241, 7019}, // SIRGAS-CON SIR15P01
    GeographicRow{8987, 1242, 7019}, // SIRGAS-CON SIR17P01
    GeographicRow{8988, 6647, 7019}, // ITRF88
    GeographicRow{8989, 6648, 7019}, // ITRF89
    GeographicRow{8990, 6649, 7019}, // ITRF90
    GeographicRow{8991, 6650, 7019}, // ITRF91
    GeographicRow{8992, 6651, 7019}, // ITRF92
    GeographicRow{8993, 6652, 7019}, // ITRF93
    GeographicRow{8994, 6653, 7019}, // ITRF94
    GeographicRow{8995, 6654, 7019}, // ITRF96
    GeographicRow{8996, 6655, 7019}, // ITRF97
    GeographicRow{8997, 6656, 7019}, // ITRF2000
    GeographicRow{8998, 6896, 7019}, // ITRF2005
    GeographicRow{8999, 1061, 7019}, // ITRF2008
    GeographicRow{9000, 1165, 7019}, // ITRF2014
    GeographicRow{9003, 1244, 7019}, // IGS97
    GeographicRow{9006, 1245, 7019}, // IGS00
    GeographicRow{9009, 1246, 7019}, // IGb00
    GeographicRow{9012, 1247, 7019}, // IGS05
    GeographicRow{9014, 1141, 7019}, // IGS08
    GeographicRow{9017, 1248, 7019}, // IGb08
    GeographicRow{9019, 1191, 7019}, // IGS14
    GeographicRow{9053, 1152, 7030}, // WGS 84 (G730)
    GeographicRow{9054, 1153, 7030}, // WGS 84 (G873)
    GeographicRow{9055, 1154, 7030}, // WGS 84 (G1150)
    GeographicRow{9056, 1155, 7030}, // WGS 84 (G1674)
    GeographicRow{9057, 1156, 7030}, // WGS 84 (G1762)
    GeographicRow{9059, 1178, 7019}, // ETRF89
    GeographicRow{9060, 1179, 7019}, // ETRF90
    GeographicRow{9061, 1180, 7019}, // ETRF91
    GeographicRow{9062, 1181, 7019}, // ETRF92
    GeographicRow{9063, 1182, 7019}, // ETRF93
    GeographicRow{9064, 1183, 7019}, // ETRF94
    GeographicRow{9065, 1184, 7019}, // ETRF96
    GeographicRow{9066, 1185, 7019}, // ETRF97
    GeographicRow{9067, 1186, 7019}, // ETRF2000
    GeographicRow{9068, 1204, 7019}, // ETRF2005
    GeographicRow{9069, 1206, 7019}, // ETRF2014
    GeographicRow{9072, 1221, 7019}, // NAD83(MARP00)
    GeographicRow{9075, 1249, 7019}, // NAD83(PACP00)
    GeographicRow{9140, 1251, 7019}, // KOSOVAREF01
    GeographicRow{9148, 1252, 7019}, // SIRGAS-Chile 2013
    GeographicRow{9153, 1253, 7019}, // SIRGAS-Chile 2016
    GeographicRow{9184, 1254, 7019}, // SIRGAS-Chile
    GeographicRow{9248, 1257, 7022}, // Tapi Aike
    GeographicRow{9251, 1258, 7022}, // MMN
    GeographicRow{9253, 1259, 7022}, // MMS
    GeographicRow{9294, 1263, 7019}, // ONGD17
    GeographicRow{9299, 1264, 7019}, // HS2-IRF
    GeographicRow{9309, 1291, 7019}, // ATRF2014
    GeographicRow{9333, 1268, 7019}, // KSA-GRF17
    GeographicRow{9364, 1266, 7019}, // TPEN11-IRF
    GeographicRow{9372, 1271, 7019}, // MML07-IRF
    GeographicRow{9380, 1272, 7019}, // IGb14
    GeographicRow{9384, 1273, 7019}, // AbInvA96_2020-IRF
    GeographicRow{9403, 1286, 7022}, // PN68
    GeographicRow{9453, 1289, 7019}, // GBK19-IRF
    GeographicRow{9470, 1293, 7030}, // SRGI2013
    GeographicRow{9474, 1157, 7054}, // PZ-90.02
    GeographicRow{9475, 1158, 7054}, // PZ-90.11
    GeographicRow{9547, 1295, 7019}, // LTF2004(G)
    GeographicRow{9696, 1304, 7019}, // REDGEOMIN
    GeographicRow{9702, 1305, 7019}, // ETRF2000-PL
    GeographicRow{9739, 1308, 7019}, // EOS21-IRF
    GeographicRow{9755, 1309, 7030}, // WGS 84 (G2139)
    GeographicRow{9758, 1310, 7019}, // ECML14_NB-IRF
    GeographicRow{9763, 1311, 7019}, // EWR2-IRF
    GeographicRow{9777, 1312, 7019}, // RGF93 v2
    GeographicRow{9782, 1313, 7019}, // RGF93 v2b
    GeographicRow{9866, 1314, 7019}, // MRH21-IRF
    GeographicRow{9871, 1315, 7019}, // MOLDOR11-IRF
    GeographicRow{9939, 1319, 7019}, // EBBWV14-IRF
    GeographicRow{9964, 1317, 7019}, // HULLEE13-IRF
    GeographicRow{9969, 1320, 7019}, // SCM22-IRF
    GeographicRow{9974, 1321, 7019}, // FNL22-IRF
    GeographicRow{9990, 1322, 7019}, // ITRF2020
    GeographicRow{20033, 1324, 7019}, // MWC18-IRF
    GeographicRow{20041, 1327, 7019}, // SIRGAS-Chile 2021
});
// clang-format on

} // namespace ZrProj::GeoTIFF
