"""Which bulletins the sample files hold: headings, habits of the country and stations."""

# WMO heading, sender, style, stations. A "*" behind a station: automatic; "!": no report from it.
METAR_BULLETINS = (
    ("SAIY31", "LIIB", "icao", "LIRF LIRA LIMC LIML LIMF LIMJ LIPZ LIPE LIPQ LIRP"
                               " LIRN LIBD LICC LICJ LIEE LIEO"),
    ("SAUK31", "EGRR", "icao", "EGLL EGKK EGSS EGCC EGBB EGPF EGPH EGPD EGAA EGJJ"),
    ("SAIE31", "EIDB", "icao", "EIDW EINN EICK"),
    ("SAFR31", "LFPW", "icao", "LFPG LFPO LFLL LFML LFMN LFBO LFBD LFRS LFST"),
    ("SADL31", "EDZW", "icao", "EDDF EDDM EDDB EDDT EDDH EDDL EDDS EDDN EDDP"),
    ("SASW31", "LSSW", "icao", "LSZH LSGG LSZA LSZB*"),
    ("SAOS31", "LOWM", "icao", "LOWW LOWS LOWI LOWL LOWG"),
    ("SASP31", "LEMM", "icao", "LEMD LEBL LEMG LEZL LEPA GCLP"),
    ("SAPO31", "LPMG", "icao", "LPPT LPPR LPFR LPAZ"),
    ("SANL31", "EHDB", "icao", "EHAM EHRD EHGG EHBK"),
    ("SADN31", "EKMI", "icao", "EKCH EKBI EKYT"),
    ("SANO31", "ENMI", "icao", "ENGM ENBR ENVA ENTC ENZV"),
    ("SASN31", "ESWI", "icao", "ESSA ESGG ESMS ESPA"),
    ("SAFI31", "EFKL", "icao", "EFHK EFRO EFOU EFTP*"),
    ("SAIL31", "BIRK", "icao", "BIKF BIRK BIAR"),
    ("SAPL31", "EPWA", "icao", "EPWA EPKK EPGD"),
    ("SAHU31", "HABP", "icao", "LHBP LKPR LZIB LJLJ LDZA LDSP!"),
    ("SAGR31", "LGAT", "icao", "LGAV LGTS LGIR LGRP"),
    ("SATU31", "LTAA", "icao", "LTBA LTAC LTAI LTBJ"),
    ("SARS31", "RUMS", "russia", "UUEE UUDD ULLI UWWW USSS UNNT UHWW"),
    ("SAMR31", "DTTA", "plain", "DTTA DAAG GMMN HLLT HECA"),
    ("SAAR31", "OEJD", "plain", "OERK OEJN OMDB OTBD OKBK OBBI"),
    ("SAIN31", "VIDP", "plain", "VIDP VABB VECC VOMM OPKC VCBI"),
    ("SACI31", "BABJ", "mps", "ZBAA ZSSS ZGGG ZUUU ZWWW"),
    ("SAJP31", "RJTD", "japan", "RJTT RJAA RJBB RJCC RJFF ROAH"),
    ("SATH31", "VTBB", "plain", "VTBS VTCC WSSS WMKK WIII RPLL VVTS"),
    ("SAAU31", "AMMC", "plain", "YSSY YMML YBBN YPPH YPDN YPAD"),
    ("SANZ31", "NZKL", "plain", "NZAA NZWN NZCH"),
    ("SAZA31", "FAPR", "plain", "FAOR FACT FALE FYWH"),
    ("SAKN31", "HKNC", "plain", "HKJK HTDA DNMM GOOY FMMI"),
    ("SAUS70", "KWBC", "us", "KJFK KBOS KBUF KPIT KDCA KATL KMIA KJAX"),
    ("SAUS80", "KWBC", "us", "KORD KDTW KMSP KDLH KFAR KMKE* KSTL KDEN KGLD* KDFW KIAH"),
    ("SAUS90", "KWBC", "us", "KSEA KPDX KSFO KSAC* KFAT KLAX KPHX KSLC PANC PHNL"),
    ("SACN31", "CWAO", "canada", "CYUL CYYZ CYQT CYWG CYEG CYVR CYHZ CYYT CYFB"),
    ("SAMX31", "MMMX", "mexico", "MMMX MMUN MMTJ"),
    ("SACA31", "MHTG", "plain", "MROC MPTO MUHA MDSD TNCM"),
    ("SABZ31", "SBBR", "plain", "SBBR SBGR SBGL SBEG SBRF SBPA"),
    ("SAAG31", "SABM", "plain", "SAEZ SACO SARE SAWH SUMU SCEL SPJC SKBO SEQM SVMI"),
)  # fmt: skip

# The file in the form of a collection by the hour: style and stations.
CYCLE_STATIONS = (
    ("icao", "LIRF LIMC LIPZ LIRN LICC LFPG LFML LFBO EGLL EGPF EIDW EDDF EDDM EHAM EKCH ENGM ESSA"
             " EFHK LEMD LPPT LSZH LOWW LHBP LGAV LTBA BIKF"),
    ("russia", "UUEE ULLI UNNT"),
    ("plain", "GMMN HECA OERK OMDB VIDP WSSS YSSY FAOR SAEZ SCEL"),
    ("mps", "ZBAA ZSSS"),
    ("japan", "RJTT RJBB"),
    ("us", "KJFK KBOS KORD KDTW KMSP KATL KMIA KDEN KSEA KSFO KLAX KDFW KBUF"),
    ("canada", "CYUL CYYZ CYVR CYWG"),
)  # fmt: skip

# Heading, sender, hour, what the region reports at that hour, wind unit and source (iw, code table
# 1855: 0 m/s estimated, 1 m/s measured, 3 knots estimated, 4 knots measured), stations.
SYNOP_BULLETINS = (
    ("SMIY01", "LIIB", 6, "europe", 4,
     "16020 16059 16066 16080 16090 16105 16140 16158 16206 16230 16239 16242 16289 16320 16405"
     " 16429 16460 16560"),
    ("SMUK01", "EGRR", 6, "europe", 4,
     "03005 03026 03772 03257 03302 03414 03503 03672 03808 03917"),
    ("SMFR01", "LFPW", 6, "europe", 1,
     "07005 07015 07037 07110 07149 07190 07255 07299 07434 07481 07510 07630 07650 07690"
     " 07747 07761"),
    ("SMDL01", "EDZW", 6, "europe", 1,
     "10015 10035 10147 10224 10338 10384 10400 10488 10501 10637 10738 10763 10852 10870 10929"),
    ("SMSW01", "LSSW", 6, "europe", 4, "06610 06670 06700 06760 06770"),
    ("SMOS01", "LOWM", 6, "europe", 1, "11010 11035 11120 11150 11231 11240"),
    ("SMNO01", "ENMI", 6, "europe", 1, "01028 01049 01152 01241 01311 01384 01415 01492"),
    ("SMSN01", "ESWI", 6, "europe", 1, "02044 02226 02464 02527 02590"),
    ("SMFI01", "EFKL", 6, "europe", 1, "02836 02875 02935 02974"),
    ("SMPL01", "SOWR", 6, "europe", 1, "12120 12160 12330 12375 12424 12566"),
    ("SMGR01", "LGAT", 6, "europe", 4, "16622 16648 16716 16749 16754"),
    ("SMRS01", "RUMS", 6, "asia", 0, "22550 26063 27612 28698 29634 30710 31960"),
    ("SMSP01", "LEMM", 6, "europe", 4, "08001 08023 08141 08181 08221 08314 08391 08482"),
    ("SMAL01", "DAMM", 6, "africa", 3, "60390 60461 60555 60680"),
    ("SMJP01", "RJTD", 6, "asia", 4, "47401 47412 47582 47662 47772 47807 47936"),
    ("SMAU01", "AMMC", 6, "australia", 4, "94120 94326 94578 94610 94767 94866 94975"),
    ("SMBZ01", "SBBR", 12, "america", 1, "82331 82900 83378 83377 83743 83971"),
    ("SMCN01", "CWAO", 12, "america", 4, "71081 71082 71197 71627 71801 71867 71924"),
)  # fmt: skip

# Heading, sender, wind in knots, "BBXX" before each report, ships and buoys: name, latitude,
# longitude, course (code table 0700), speed (table 4451), sea temperature. Buoys lie still.
SEA_BULLETINS = (
    ("SMVX01", "EGRR", True, False, (
        ("C6QX4", 50.2, -12.4, 2, 3, 13.2),
        ("GZVK", 49.1, -6.3, 6, 4, 13.6),
        ("PDHB", 54.6, 3.2, 1, 3, 11.8),
        ("OXQB2", 57.3, 6.4, 4, 3, 10.9),
        ("ZDGT8", 46.0, -21.5, 7, 4, 15.4),
        ("DHQK", 44.8, -35.7, 6, 4, 16.9),
        ("V7FR2", 36.4, -18.9, 3, 3, 20.1),
        ("62029", 48.7, -12.4, 0, 0, 13.4),
        ("62107", 50.1, -6.1, 0, 0, 13.5),
        ("62303", 51.6, -5.1, 0, 0, 12.9))),
    ("SMVX02", "LIIB", True, True, (
        ("IBZK", 40.2, 12.1, 3, 4, 20.3),
        ("ICQV", 38.6, 6.9, 2, 4, 19.8),
        ("9HLT5", 35.9, 16.4, 7, 3, 22.0),
        ("SWKR", 36.2, 21.8, 6, 4, 21.7),
        ("3FMD8", 43.1, 14.9, 8, 2, 18.2))),
    ("SMVD01", "KWBC", True, False, (
        ("WKDP", 33.8, -72.6, 1, 5, 23.1),
        ("ELYQ9", 27.2, -88.4, 7, 3, 25.6),
        ("H9TC", 12.8, -79.6, 5, 4, 28.4),
        ("44014", 36.6, -74.8, 0, 0, 17.9),
        ("41002", 32.3, -75.4, 0, 0, 24.6),
        ("42001", 25.9, -89.7, 0, 0, 26.2))),
    ("SMVX10", "RJTD", True, True, (
        ("JQWR", 34.1, 141.7, 2, 4, 20.8),
        ("9V8AX", 12.6, 113.2, 1, 4, 28.3),
        ("VRDJ4", 22.4, 122.8, 5, 4, 26.5))),
    ("SMVX20", "AMMC", True, False, (
        ("VNKT", -36.1, 152.4, 5, 4, 19.6),
        ("ZMQA", -39.8, 168.2, 2, 3, 15.9),
        ("ZSBN", -34.9, 20.6, 6, 3, 19.1),
        ("LWEG", -39.4, -55.8, 5, 4, 14.7))),
)  # fmt: skip

# Heading, sender, style, first hour, length in hours, stations.
TAF_BULLETINS = (
    ("FTIY31", "LIIB", "icao", 12, 24, "LIRF LIMC LIPZ LICC"),
    ("FCUK31", "EGRR", "icao", 13, 9, "EGLL EGPF EGKK"),
    ("FTDL31", "EDZW", "icao", 12, 24, "EDDF EDDM"),
    ("FTRS31", "RUMS", "russia", 12, 24, "UUEE ULLI"),
    ("FTAU31", "AMMC", "plain", 12, 24, "YSSY YMML"),
    ("FTUS80", "KWBC", "us", 12, 24, "KJFK KORD KDTW"),
    ("FCFR31", "LFPW", "icao", 12, 9, "LFPG LFML LFBO"),
    ("FTSP31", "LEMM", "icao", 12, 24, "LEMD LEBL"),
    ("FTNO31", "ENMI", "icao", 12, 24, "ENGM ENBR"),
    ("FTCN31", "CWAO", "canada", 12, 24, "CYUL CYYZ CYVR"),
    ("FTJP31", "RJTD", "plain", 12, 24, "RJTT RJBB"),
    ("FTCI31", "BABJ", "mps", 12, 24, "ZBAA ZSSS"),
    ("FTBZ31", "SBBR", "plain", 12, 24, "SBGR SBGL"),
    ("FTZA31", "FAPR", "plain", 12, 24, "FAOR FACT"),
)  # fmt: skip

# The frontal analysis: highs and lows of zgtools/weather.py that it tells, then the lines with their
# strength and their points, degrees of north latitude and west longitude. The lines of a low begin
# at its centre or where its occlusion ends.
ANALYSIS = ("ASUS1", "KWBC", 12)
ANALYSIS_CENTRES = ("Aleutian low", "Alaska low", "Great Basin high", "Great Lakes low",
                    "Carolina high", "Labrador high", "Iceland low", "Azores high")  # fmt: skip
ANALYSIS_LINES = (
    ("OCFNT", "", "4686 4583 4481"),
    ("WARM", "WK", "4481 4377 4173 3970"),
    ("COLD", "MDT", "4481 4183 3886 3590 3294 2998"),
    ("STNRY", "WK", "2998 27101 25103"),
    ("TROF", "", "4686 4787 4889 5091"),
    ("OCFNT", "", "54172 53166 51161"),
    ("WARM", "", "51161 49156 46152"),
    ("COLD", "STG", "51161 47163 43167 39172"),
    ("OCFNT", "WK", "57143 55138"),
    ("COLD", "WK", "55138 52135 48134 44136 41140"),
    ("STNRY", "", "54121 51117 48113 45109 42106"),
    ("TROF", "", "36103 34103 32102"),
    ("OCFNT", "", "6134 5830 5527"),
    ("COLD", "MDT", "5527 5128 4732 4338 4046"),
)  # fmt: skip
