// What the circulated bulletins come to with the shipped station lists and settings: counts that
// change only when a rule of decoding or a list does, and then for a reason that can be told.
#pragma once

#include <cstddef>
#include <ostream>
#include <string_view>

namespace zg::test {

struct RealFile {
  std::string_view name;
  std::ptrdiff_t records;     // lines of standard output
  std::ptrdiff_t wrongLines;  // lines of the wrong-line file
  std::ptrdiff_t logLines;    // lines of standard error

  bool operator==(const RealFile&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const RealFile& file) {
  return out << "{\"" << file.name << "\", " << file.records << ", " << file.wrongLines << ", "
             << file.logLines << "},";
}

// clang-format off
inline constexpr RealFile RealFileTable[] = {
    {"fronts/ASUS01_KWBC_20260726_0128_trimmed.txt", 0, 0, 4},
    {"fronts/ASUS02_KWBC_20210628_1800_hires.txt", 0, 0, 4},
    {"fronts/ASUS02_KWBC_20260815_2100_head.txt", 0, 0, 4},
    {"fronts/ASUS1_KWBC_20010105_1345.txt", 272, 0, 4},
    {"metar/SA_bulletins_20200105_03Z.txt", 1027, 19, 6},
    {"metar/SPECI_bulletins_20200105_03Z.txt", 11, 0, 4},
    {"metar/cycle_format_anchor_time.txt", 9, 0, 4},
    {"metar/cycle_format_daytime.txt", 0, 0, 4},
    {"metar/cycle_format_header.txt", 7, 1, 5},
    {"metar/cycle_format_null.txt", 1, 1, 5},
    {"metar/cycle_format_present_weather.txt", 66, 0, 6},
    {"metar/cycle_format_pressure.txt", 8, 0, 4},
    {"metar/cycle_format_recent_weather.txt", 17, 0, 4},
    {"metar/cycle_format_visibility.txt", 28, 0, 4},
    {"metar/cycle_format_wind.txt", 27, 0, 7},
    {"metar/cycle_format_wind_shear.txt", 4, 0, 4},
    {"metar/derived_cycle_layout_20190701_12Z.TXT", 8949, 0, 83},
    {"metar/metaf_real_metar.txt", 312, 1, 15},
    {"metar/metar_20190701_1200.txt", 17388, 3436, 3073},
    {"metar/metars_with_long_remarks.txt", 0, 0, 4},
    {"metar/metarsharp_2186_metars_2023.txt", 0, 1, 4},
    {"metar/ogimet_listing_FMMI_2020-01_SA.txt", 0, 1663, 1667},
    {"metar/pyiem_badchars.txt", 3, 0, 3},
    {"metar/pyiem_collective2.txt", 35, 0, 3},
    {"metar/pyiem_first.txt", 2, 0, 3},
    {"metar/pyiem_kmwn.txt", 0, 0, 4},
    {"metar/pyiem_nullbyte.txt", 0, 0, 3},
    {"metar/pyiem_sa.txt", 0, 4, 7},
    {"metar/strings_6639835_metar-taf-decoder.txt", 1, 0, 5},
    {"metar/strings_Okan1701_DutchMetar.txt", 2, 0, 4},
    {"metar/strings_RISCfuture_SwiftMETAR.txt", 0, 0, 4},
    {"metar/strings_SafranCassiopee_php-metar-decoder.txt", 1, 0, 4},
    {"metar/strings_TAF-Verification_aeromet-py.txt", 0, 0, 4},
    {"metar/strings_antarctica_pymetdecoder.txt", 0, 0, 4},
    {"metar/strings_avwx-rest_avwx-engine.txt", 0, 0, 4},
    {"metar/strings_flightaware_mdsplib.txt", 10, 0, 7},
    {"metar/strings_mivek_MetarParser.txt", 3, 0, 5},
    {"metar/strings_nnaumenko_metaf.txt", 6, 0, 5},
    {"metar/strings_python-metar_python-metar.txt", 1, 0, 4},
    {"mixed/SSVX06_LFVW_011600___51411.txt", 0, 2, 7},
    {"mixed/feed_20200105_03Z.txt", 1038, 127, 120},
    {"mixed/sundew_testsuite_bulletins.txt", 6, 0, 4},
    {"ship/SIVD30_KWBC_050300_RRA__51449.txt", 30, 0, 4},
    {"ship/SIVD31_KWBC_050300___47952.txt", 2, 0, 4},
    {"ship/SMVD22_KWBC_110044_BOYCM7.txt", 6, 0, 3},
    {"ship/SMVX90_KWBC_281803_and_SMVE01_NZKL.txt", 5, 0, 4},
    {"ship/SNVD01_KWBC_050200_RRU__26184.txt", 16, 0, 4},
    {"ship/bufr_to_text_wmo-im_wis2box.txt", 40, 0, 4},
    {"ship/malformed_ship_reports_2018-09-07.txt", 0, 0, 4},
    {"synop/AAXX_without_heading_last_report_unterminated.txt", 3, 0, 4},
    {"synop/SMCI01_BABJ_20191105_0000.txt", 28, 0, 3},
    {"synop/SMPR01_SPIM_281800.txt", 2, 1, 5},
    {"synop/SMRO01_YRBK_20220321_1200.txt", 23, 0, 4},
    {"synop/SMRO01_YRBK_20230117_1200CCA_51649529.txt", 1, 0, 4},
    {"synop/SMRO01_YRBK_20230117_1200CCB_52396633.txt", 1, 0, 4},
    {"synop/SMRO01_YRBK_20230118_0000CCA_51967254.txt", 1, 0, 4},
    {"synop/SMRO01_YRBK_20230118_0000_51936144.txt", 23, 0, 4},
    {"synop/SMRO01_YRBK_20230118_0000_51945941.txt", 23, 0, 4},
    {"synop/SMRO01_YRBK_20230118_0600_52242453.txt", 23, 0, 4},
    {"synop/WX.00_SMCU20_MUHV_cuba_etc.txt", 60, 2, 6},
    {"synop/bufr_to_text_ARPA-SIMC_dballe.txt", 193, 0, 4},
    {"synop/bufr_to_text_ARPA-SIMC_wreport.txt", 71, 0, 4},
    {"synop/bufr_to_text_akrherz_pyWWA.txt", 366, 1, 24},
    {"synop/bufr_to_text_gbvalor_bufr2synop.txt", 58, 0, 4},
    {"synop/bufr_to_text_wmo-im_csv2bufr.txt", 0, 0, 4},
    {"synop/bufr_to_text_wmo-im_wis2box-training.txt", 11, 0, 4},
    {"synop/bufr_to_text_wmo-im_wis2box.txt", 49, 0, 4},
    {"synop/bufr_to_text_ywangd_pybufrkit.txt", 28, 0, 4},
    {"synop/converted_etoyoda_ismd02edzw.t.txt", 26, 0, 3},
    {"synop/converted_etoyoda_ismd10rums.t.txt", 1, 0, 3},
    {"synop/converted_etoyoda_isml01rjtd.t.txt", 1, 0, 3},
    {"synop/converted_etoyoda_ismn01babj.t.txt", 28, 0, 3},
    {"synop/fake_all_groups_romania.txt", 0, 0, 4},
    {"synop/norway_01025_2006-02.txt", 53, 0, 3},
    {"synop/norway_01058_2006-02.txt", 53, 0, 3},
    {"synop/norway_01167_2006-02.txt", 3, 0, 3},
    {"synop/norway_01311_2006-02.txt", 52, 0, 3},
    {"synop/norway_01492_2006-02.txt", 56, 0, 3},
    {"synop/ogimet_lines_33745_2026-08-14.txt", 0, 9, 13},
    {"synop/rave_A_SMNO01ENMI300600RRC_C_ENMI_20131030061900.txt", 1, 0, 3},
    {"synop/rave_A_SMSN86ESWI310600_C_ESWI_20131031061530.txt", 41, 1, 4},
    {"synop/rave_A_SMUR11UKMS300600RRA_C_UKMS_20131030061900.txt", 1, 0, 3},
    {"synop/reports_quoted_in_issues_pymetdecoder.txt", 0, 0, 4},
    {"synop/rtty_fragments_fldigi.txt", 61, 5, 13},
    {"synop/strings_antarctica_pymetdecoder.txt", 0, 0, 4},
    {"synop/strings_bczernecki_climate.txt", 6, 0, 4},
    {"taf/FTCA31_KWBC_122254.txt", 2, 0, 4},
    {"taf/FTNA35_KAWN_050300_RRE__70960.txt", 0, 2, 6},
    {"taf/derived_cycle_layout.txt", 242, 10, 86},
    {"taf/metaf_real_taf.txt", 242, 10, 86},
    {"taf/pyiem_TAFAGS.txt", 1, 0, 4},
    {"taf/pyiem_TAFAGS_2.txt", 1, 0, 4},
    {"taf/pyiem_TAFDSM_2.txt", 1, 0, 4},
    {"taf/pyiem_TAFGRI.txt", 1, 0, 4},
    {"taf/pyiem_TAFHKY.txt", 1, 0, 4},
    {"taf/pyiem_TAFHPN.txt", 1, 0, 4},
    {"taf/pyiem_TAFJXN.txt", 1, 0, 4},
    {"taf/pyiem_TAFLAN.txt", 1, 0, 4},
    {"taf/pyiem_TAFOLF.txt", 1, 0, 4},
    {"taf/pyiem_TAFPAM.txt", 0, 0, 4},
    {"taf/pyiem_TAFTPP.txt", 1, 6, 5},
    {"taf/pyiem_TAF_EGRR.txt", 6, 0, 4},
    {"taf/pyiem_TAF_collective.txt", 2, 0, 4},
    {"taf/pywwa_TAF.txt", 1, 0, 3},
    {"taf/strings_6639835_metar-taf-decoder.txt", 1, 0, 4},
    {"taf/strings_Okan1701_DutchMetar.txt", 3, 0, 4},
    {"taf/strings_RISCfuture_SwiftMETAR.txt", 1, 0, 10},
    {"taf/strings_SafranCassiopee_php-taf-decoder.txt", 0, 0, 4},
    {"taf/strings_TAF-Verification_aeromet-py.txt", 0, 0, 4},
    {"taf/strings_avwx-rest_avwx-engine.txt", 0, 0, 4},
    {"taf/strings_mivek_MetarParser.txt", 1, 0, 10},
    {"taf/strings_nnaumenko_metaf.txt", 1, 1, 4},
};
// clang-format on

}  // namespace zg::test
