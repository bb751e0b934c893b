// Grid files: the register's own, latitudes before longitudes; a copy as NTv2, and whether it runs backwards.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which
// is IOGP's, as proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names
// are of ArcGIS Pro 3.0 of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr GridRow grids[] = {
    {231126, 231136, 231115, false}, // guhpgn.las, guhpgn.los, guhpgn.gsb
    {230582, 230589, 10, false}, // conus.las, conus.los
    {230358, 230366, 10, false}, // alaska.las, alaska.los
    {169385, 10, 10, false}, // RGNC1991_NEA74Noumea.gsb
    {131118, 10, 10, false}, // NTv1_0.gsb
    {131129, 10, 233042, false}, // NTv2_0.gsb, ntv2_0.gsb
    {147123, 10, 10, false}, // PQV4.DAC
    {231147, 231157, 10, false}, // hawaii.las, hawaii.los
    {233586, 233595, 10, false}, // stlrnc.las, stlrnc.los
    {233605, 233614, 10, false}, // stpaul.las, stpaul.los
    {233565, 233575, 10, false}, // stgeorge.las, stgeorge.los
    {233240, 233248, 10, false}, // prvi.las, prvi.los
    {56690, 10, 10, false}, // GS2783v1.QUE
    {93321, 10, 88990, false}, // May76v20.gsb, MAY76V20.gsb
    {233812, 10, 10, false}, // vic_0799.gsb
    {129824, 10, 129812, false}, // NB7783v2.gsb, NB7783v2.GSB
    {230385, 230394, 230375, false}, // alhpgn.las, alhpgn.los, alhpgn.gsb
    {230453, 230463, 230442, false}, // azhpgn.las, azhpgn.los, azhpgn.gsb
    {230529, 230539, 230518, false}, // cnhpgn.las, cnhpgn.los, cnhpgn.gsb
    {230619, 230628, 230609, false}, // cshpgn.las, cshpgn.los, cshpgn.gsb
    {230561, 230571, 230550, false}, // cohpgn.las, cohpgn.los, cohpgn.gsb
    {231040, 231049, 231030, false}, // gahpgn.las, gahpgn.los, gahpgn.gsb
    {231009, 231019, 10, false}, // flhpgn.las, flhpgn.los
    {230835, 230844, 230825, false}, // emhpgn.las, emhpgn.los, emhpgn.gsb
    {233878, 233888, 233867, false}, // wmhpgn.las, wmhpgn.los, wmhpgn.gsb
    {231481, 231491, 231470, false}, // kyhpgn.las, kyhpgn.los, kyhpgn.gsb
    {231512, 231521, 231502, false}, // lahpgn.las, lahpgn.los, lahpgn.gsb
    {231531, 231541, 10, false}, // mdhpgn.las, mdhpgn.los
    {231563, 231573, 231552, false}, // mehpgn.las, mehpgn.los, mehpgn.gsb
    {231603, 231613, 231592, false}, // mihpgn.las, mihpgn.los, mihpgn.gsb
    {231714, 231723, 231704, false}, // mshpgn.las, mshpgn.los, mshpgn.gsb
    {232839, 232849, 232828, false}, // nbhpgn.las, nbhpgn.los, nbhpgn.gsb
    {232935, 232945, 232924, false}, // nehpgn.las, nehpgn.los, nehpgn.gsb
    {232999, 233009, 232988, false}, // nmhpgn.las, nmhpgn.los, nmhpgn.gsb
    {233095, 233105, 233084, false}, // nyhpgn.las, nyhpgn.los, nyhpgn.gsb
    {232903, 232913, 232892, false}, // ndhpgn.las, ndhpgn.los, ndhpgn.gsb
    {233184, 233194, 233173, false}, // okhpgn.las, okhpgn.los, okhpgn.gsb
    {233268, 233278, 233257, false}, // pvhpgn.las, pvhpgn.los, pvhpgn.gsb
    {233494, 233504, 233483, false}, // sdhpgn.las, sdhpgn.los, sdhpgn.gsb
    {233662, 233672, 10, false}, // tnhpgn.las, tnhpgn.los
    {230956, 230965, 230946, false}, // ethpgn.las, ethpgn.los, ethpgn.gsb
    {233959, 233968, 233949, false}, // wthpgn.las, wthpgn.los, wthpgn.gsb
    {233793, 233802, 233783, false}, // vahpgn.las, vahpgn.los, vahpgn.gsb
    {233899, 233909, 10, false}, // wohpgn.las, wohpgn.los
    {233846, 233856, 10, false}, // wihpgn.las, wihpgn.los
    {234021, 234031, 234010, false}, // wyhpgn.las, wyhpgn.los, wyhpgn.gsb
    {233624, 10, 10, false}, // tas_1098.gsb
    {233020, 10, 10, false}, // nt_0599.gsb
    {231211, 231221, 231200, false}, // hihpgn.las, hihpgn.los, hihpgn.gsb
    {231300, 231309, 231290, false}, // inhpgn.las, inhpgn.los, inhpgn.gsb
    {231451, 231460, 231441, false}, // kshpgn.las, kshpgn.los, kshpgn.gsb
    {233063, 233073, 233052, false}, // nvhpgn.las, nvhpgn.los, nvhpgn.gsb
    {233152, 233162, 233141, false}, // ohhpgn.las, ohhpgn.los, ohhpgn.gsb
    {233716, 233725, 233706, false}, // uthpgn.las, uthpgn.los, uthpgn.gsb
    {233989, 233999, 233978, false}, // wvhpgn.las, wvhpgn.los, wvhpgn.gsb
    {231271, 231280, 231261, false}, // ilhpgn.las, ilhpgn.los, ilhpgn.gsb
    {232967, 232977, 232956, false}, // njhpgn.las, njhpgn.los, njhpgn.gsb
    {233824, 10, 10, false}, // wa_0400.gsb
    {233116, 10, 233116, false}, // nzgd2kgrid0005.gsb, nzgd2kgrid0005.gsb
    {129129, 10, 97414, false}, // NAD83-98.gsb, NA83SCRS.GSB
    {97393, 10, 231733, false}, // NA27NA83.GSB, na27na83.gsb
    {167078, 10, 97404, false}, // QUE27-98.gsb, NA27SCRS.GSB
    {28438, 10, 230597, false}, // CQ77NA83.GSB, cq77na83.gsb
    {27838, 10, 28450, false}, // CGQ77-98.gsb, CQ77SCRS.GSB
    {233930, 233939, 233920, false}, // wshpgn.las, wshpgn.los, wshpgn.gsb
    {230927, 230936, 230917, false}, // eshpgn.las, eshpgn.los, eshpgn.gsb
    {233835, 10, 10, false}, // wa_0700.gsb
    {175827, 10, 10, false}, // SEAust_21_06_00.gsb
    {146211, 10, 146199, false}, // PE7783V2.gsb, PE7783V2.GSB
    {178535, 10, 178524, false}, // SK27-98.gsb, SK27-98.GSB
    {178557, 10, 178546, false}, // SK83-98.gsb, SK83-98.GSB
    {3643, 10, 3621, false}, // AB_CSRS.DAC, ABCSRSV4.GSB
    {97404, 10, 97404, false}, // NA27SCRS.GSB, NA27SCRS.GSB
    {97414, 10, 97414, false}, // NA83SCRS.GSB, NA83SCRS.GSB
    {230423, 230432, 230413, false}, // arhpgn.las, arhpgn.los, arhpgn.gsb
    {231242, 231251, 231232, false}, // iahpgn.las, iahpgn.los, iahpgn.gsb
    {231651, 231661, 231640, false}, // mnhpgn.las, mnhpgn.los, mnhpgn.gsb
    {231683, 231693, 231672, false}, // mohpgn.las, mohpgn.los, mohpgn.gsb
    {3571, 10, 3594, false}, // A66 National (13.09.01).gsb, A66_National_13_09_01.gsb
    {133203, 10, 133241, false}, // National 84 (02.07.01).gsb, National_84_02_07_01.gsb
    {130514, 10, 10, false}, // NS778301.gsb
    {142813, 10, 10, false}, // OSTN02_NTv2.gsb
    {26058, 10, 10, false}, // CA61_003.gsb
    {26071, 10, 10, false}, // CA7072_003.gsb
    {175674, 10, 10, false}, // SAD69_003.gsb
    {175687, 10, 10, false}, // SAD96_003.gsb
    {611, 10, 611, false}, // 100800401.gsb, 100800401.gsb
    {4437, 10, 4437, false}, // AT_GIS_GRID.gsb, AT_GIS_GRID.gsb
    {39009, 10, 39009, false}, // DLx_ETRS89_geo.gsb, DLx_ETRS89_geo.gsb
    {37680, 10, 37680, false}, // D73_ETRS89_geo.gsb, D73_ETRS89_geo.gsb
    {129801, 10, 129790, false}, // NB2783v2.gsb, NB2783v2.GSB
    {233635, 10, 10, false}, // tky2jgd.gsb
    {233683, 10, 10, false}, // touhokutaiheiyouoki2011.gsb
    {233647, 10, 10, false}, // tm75_etrs89.gsb
    {131140, 10, 131140, false}, // NTv2_SN.gsb, NTv2_SN.gsb
    {233289, 10, 233289, false}, // rdtrans2008.gsb, rdtrans2008.gsb
    {28022, 10, 28022, false}, // CHENyx06_ETRS.gsb, CHENyx06_ETRS.gsb
    {142829, 10, 142829, false}, // OSTN15_NTv2_OSGBtoETRS.gsb, OSTN15_NTv2_OSGBtoETRS.gsb
    {186120, 186147, 10, false}, // Slovakia_JTSK03_to_JTSK.LAS, Slovakia_JTSK03_to_JTSK.LOS
    {230474, 10, 230474, false}, // bd72lb72_etrs89lb08.gsb, bd72lb72_etrs89lb08.gsb
    {55572, 10, 55572, false}, // GDA94_GDA2020_conformal_christmas_island.gsb, GDA94_GDA2020_conformal_christmas_island.gsb
    {55606, 10, 55606, false}, // GDA94_GDA2020_conformal_cocos_island.gsb, GDA94_GDA2020_conformal_cocos_island.gsb
    {55517, 10, 55517, false}, // GDA94_GDA2020_conformal.gsb, GDA94_GDA2020_conformal.gsb
    {55540, 10, 55540, false}, // GDA94_GDA2020_conformal_and_distortion.gsb, GDA94_GDA2020_conformal_and_distortion.gsb
    {232558, 232601, 10, false}, // nadcon5.sg1952.nad83_1986.stgeorge.lat.trn.20160901.b, nadcon5.sg1952.nad83_1986.stgeorge.lon.trn.20160901.b
    {232644, 232689, 10, false}, // nadcon5.sl1952.nad83_1986.stlawrence.lat.trn.20160901.b, nadcon5.sl1952.nad83_1986.stlawrence.lon.trn.20160901.b
    {232734, 232776, 10, false}, // nadcon5.sp1952.nad83_1986.stpaul.lat.trn.20160901.b, nadcon5.sp1952.nad83_1986.stpaul.lon.trn.20160901.b
    {231902, 231941, 10, false}, // nadcon5.nad27.nad83_1986.alaska.lat.trn.20160901.b, nadcon5.nad27.nad83_1986.alaska.lon.trn.20160901.b
    {232056, 232098, 10, false}, // nadcon5.nad83_1986.nad83_1992.alaska.lat.trn.20160901.b, nadcon5.nad83_1986.nad83_1992.alaska.lon.trn.20160901.b
    {231980, 232018, 10, false}, // nadcon5.nad27.nad83_1986.conus.lat.trn.20160901.b, nadcon5.nad27.nad83_1986.conus.lon.trn.20160901.b
    {232312, 232354, 10, false}, // nadcon5.nad83_1986.nad83_harn.conus.lat.trn.20160901.b, nadcon5.nad83_1986.nad83_harn.conus.lon.trn.20160901.b
    {232396, 232437, 10, false}, // nadcon5.ohd.nad83_1986.hawaii.lat.trn.20160901.b, nadcon5.ohd.nad83_1986.hawaii.lon.trn.20160901.b
    {232140, 232184, 10, false}, // nadcon5.nad83_1986.nad83_1993.hawaii.lat.trn.20160901.b, nadcon5.nad83_1986.nad83_1993.hawaii.lon.trn.20160901.b
    {231744, 231780, 10, false}, // nadcon5.as62.nad83_1993.as.lat.trn.20160901.b, nadcon5.as62.nad83_1993.as.lon.trn.20160901.b
    {231816, 231859, 10, false}, // nadcon5.gu63.nad83_1993.guamcnmi.lat.trn.20160901.b, nadcon5.gu63.nad83_1993.guamcnmi.lon.trn.20160901.b
    {232478, 232518, 10, false}, // nadcon5.pr40.nad83_1986.prvi.lat.trn.20160901.b, nadcon5.pr40.nad83_1986.prvi.lon.trn.20160901.b
    {232228, 232270, 10, false}, // nadcon5.nad83_1986.nad83_1993.prvi.lat.trn.20160901.b, nadcon5.nad83_1986.nad83_1993.prvi.lon.trn.20160901.b
    {56701, 10, 56701, false}, // GS7783.GSB, GS7783.GSB
    {130536, 10, 130525, false}, // NS778302.gsb, NS778302.GSB
    {142427, 10, 142427, false}, // ON27CSv1.GSB, ON27CSv1.GSB
    {192335, 10, 192324, false}, // TOR27CSv1.GSB, TO27CSv1.GSB
    {142438, 10, 142438, false}, // ON76CSv1.GSB, ON76CSv1.GSB
    {142450, 10, 142450, false}, // ON83CSv1.GSB, ON83CSv1.GSB
    {178514, 10, 10, false}, // SK27-83.gsb
    {18611, 10, 10, false}, // BC_27_98.GSB
    {28598, 10, 28598, false}, // CRD27_00.GSB, CRD27_00.GSB
    {131152, 10, 10, false}, // NVI27_05.GSB
    {18599, 10, 18599, false}, // BC_27_05.GSB, BC_27_05.GSB
    {18636, 10, 10, false}, // BC_93_98.GSB
    {28610, 10, 28610, false}, // CRD93_00.GSB, CRD93_00.GSB
    {131164, 10, 131164, false}, // NVI93_05.GSB, NVI93_05.GSB
    {18623, 10, 18623, false}, // BC_93_05.GSB, BC_93_05.GSB
    {28623, 10, 10, false}, // CRD98_00.GSB
    {131177, 10, 10, false}, // NVI98_05.GSB
    {18649, 10, 10, false}, // BC_98_05.GSB
    {70723, 10, 70723, false}, // ISN93_ISN2016.gsb, ISN93_ISN2016.gsb
    {70573, 10, 70573, false}, // ISN2004_ISN2016.gsb, ISN2004_ISN2016.gsb
    {233302, 10, 233302, false}, // rdtrans2018.gsb, rdtrans2018.gsb
    {66519, 10, 10, false}, // HS2TN15_NTv2.gsb
    {184779, 10, 184779, false}, // SeTa2016.gsb, SeTa2016.gsb
    {231059, 10, 10, false}, // gr3df97a.txt
    {231098, 10, 10, false}, // gr3dnc03a.mnt
    {231072, 10, 10, false}, // gr3dnc01b.mnt
    {231085, 10, 10, false}, // gr3dnc02b.mnt
    {19376, 10, 19376, false}, // BWTA2017.gsb, BWTA2017.gsb
    {4075, 10, 10, false}, // ARAMCO_AAA-KSAGRF_6.tac
    {192296, 10, 10, false}, // TN15-ETRS89-to-TPEN11-IRF.gsb
    {192155, 10, 10, false}, // TN15-ETRS89-to-MML07-IRF.gsb
    {191919, 10, 10, false}, // TN15-ETRS89-to-AbInvA96_2020-IRF.gsb
    {146223, 10, 10, false}, // PENR2009.gsb
    {18581, 10, 10, false}, // BALR2009.gsb
    {192097, 10, 10, false}, // TN15-ETRS89-to-GBK19-IRF.gsb
    {89774, 10, 10, false}, // MGI1901_TO_SRBETRS89_NTv2.gsb
    {130502, 10, 10, false}, // NLCSRSV4A.GSB
    {2177, 10, 10, false}, // 35160622_47161840_R40_E50.gsb
    {2236, 10, 10, false}, // 35160622_47161840_R40_F89.gsb
    {2207, 10, 10, false}, // 35160622_47161840_R40_F00.gsb
    {2120, 10, 10, false}, // 35160622_47161840_E50_F89.gsb
    {2091, 10, 10, false}, // 35160622_47161840_E50_F00.gsb
    {2149, 10, 10, false}, // 35160622_47161840_F89_F00.gsb
    {192014, 10, 10, false}, // TN15-ETRS89-to-EOS21-IRF.gsb
    {191982, 10, 10, false}, // TN15-ETRS89-to-ECML14_NB-IRF.gsb
    {192042, 10, 10, false}, // TN15-ETRS89-to-EWR2-IRF.gsb
    {3632, 10, 10, false}, // ABCSRSV7.GSB
    {192213, 10, 10, false}, // TN15-ETRS89-to-MRH21-IRF.gsb
    {192183, 10, 10, false}, // TN15-ETRS89-to-MOLDOR11-IRF.gsb
    {233438, 10, 233031, true}, // rgf93_ntf.gsb, ntf_r93.gsb
    {4453, 10, 10, false}, // AT_GIS_GRID_2021_09_28.gsb
    {67580, 10, 10, false}, // HeTa2010.gsb
    {191952, 10, 10, false}, // TN15-ETRS89-to-EBBWV14-IRF.gsb
    {192124, 10, 10, false}, // TN15-ETRS89-to-HULLEE13-IRF.gsb
    {192269, 10, 10, false}, // TN15-ETRS89-to-SCM22-IRF.gsb
    {192069, 10, 10, false}, // TN15-ETRS89-to-FNL22-IRF.gsb
    {178298, 10, 10, false}, // SIRGAS1995-to-SIRGAS2000.gsb
    {178338, 10, 10, false}, // SIRGAS2000-to-SIRGAS-CONSIR17P01.gsb
    {192241, 10, 10, false}, // TN15-ETRS89-to-MWC18-IRF.gsb
    {28039, 10, 28039, false}, // CHENyx06a.gsb, CHENyx06a.gsb
    {232871, 232881, 232860, false}, // nchpgn.las, nchpgn.los, nchpgn.gsb
    {233462, 233472, 233451, false}, // schpgn.las, schpgn.los, schpgn.gsb
    {233215, 233224, 233205, false}, // pahpgn.las, pahpgn.los, pahpgn.gsb
    {233555, 10, 10, false}, // sped2et.gsb
    {182661, 10, 10, false}, // SPED2ETV2.gsb
    {169360, 10, 10, false}, // RGNC1991_IGN72GrandeTerre.gsb
    {18793, 10, 18793, false}, // BETA2007.gsb, BETA2007.gsb
};
// clang-format on

} // namespace ZrProj::systems::rows
