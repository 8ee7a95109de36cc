#!/usr/bin/env python3
"""Makes the input of the benchmark: a notice file, the same content as XML, and a schema for it.

    make_input.py [-n NOTICES] [--text-only] [FOLDER]

60 % of the notices are GT1 with all 108 azimuth values, 25 % GT2 and 15 % GA1. Every notice is valid at every level.
The bytes are the same at each run: the random numbers have a fixed seed.
"""

import argparse
import math
import os
import random
from xml.sax.saxutils import escape

ADM = "F"
# Inland France, as south, west, north, east in degrees.
LAND = [
    (47.6, 1.2, 48.4, 2.4),
    (46.3, 1.6, 47.2, 3.4),
    (45.0, 2.6, 45.9, 4.4),
    (48.0, 3.6, 48.9, 4.8),
    (43.5, 1.1, 44.3, 2.7),
    (48.0, -3.2, 48.3, -1.6),
]
UHF = [f"{mhz}" for mhz in range(474, 859, 8)]
VHF = ["177.5", "184.5", "191.5", "198.5", "205.5", "212.5", "219.5", "226.5"]
PLACES = ["MONT", "PLATEAU", "FORÊT", "CÔTE", "TOUR", "COLLINE", "VALLÉE", "BUTTE"]
AZIMUTHS = [f"{degrees:03d}" for degrees in range(0, 360, 10)]
POINTS_OF_A_CONTOUR = (25, 36, 46)  # 107,000 in 3,000 contours
CONTOUR_IDS = 9999
SUB_AREAS = 3

rng = random.Random(19)


def below(count):
    # random() alone gives the same numbers in every release of Python.
    return int(rng.random() * count)


def pick(choices):
    return choices[below(len(choices))]


def coordinate(seconds, degree_digits):
    sign = "-" if seconds < 0 else "+"
    minutes, second = divmod(abs(seconds), 60)
    degree, minute = divmod(minutes, 60)
    return f"{sign}{degree:0{degree_digits}d}{minute:02d}{second:02d}"


def site(number):
    """A place on land, in seconds of arc; another one for each number."""
    south, west, north, east = LAND[number % len(LAND)]
    height = round((north - south) * 3600)
    width = round((east - west) * 3600)
    step = 15485863  # a prime that divides no box, so that it walks over all places of one
    place = number // len(LAND) * step % (height * width)
    return round(south * 3600) + place // width, round(west * 3600) + place % width


def gt1(number):
    latitude, longitude = site(number)
    name = f"F-GT1-{number + 1:06d}"
    art5 = number % 3 == 0
    vhf = number % 10 == 0
    height = 40 + below(560)
    power = 10 + below(35)
    keys = [
        ("t_notice_type", "GT1"),
        ("t_action", "ADD"),
        ("t_fragment", "NTFD_PZ" if art5 else "KV19D"),
        ("t_adm_ref_id", name),
    ]
    if art5:
        keys += [("t_plan_adm_ref_id", f"F-PLAN-{number + 1:06d}"), ("t_prov", "PZ11.2")]
    keys += plan_entry(number)
    keys += [
        ("t_ctry", ADM),
        ("t_site_name", f"{pick(PLACES)} {number + 1:06d}"),
        ("t_long", coordinate(longitude, 3)),
        ("t_lat", coordinate(latitude, 2)),
        ("t_freq_assgn", pick(VHF if vhf else UHF)),
        ("t_offset", pick(["0", "166.7", "-166.7"])),
        ("t_polar", "M"),
        ("t_erp_h_dbw", f"{power}.{below(10)}"),
        ("t_erp_v_dbw", f"{power}.{below(10)}"),
        ("t_hgt_agl", f"{20 + below(280)}"),
        ("t_site_alt", f"{60 + below(900)}"),
        ("t_eff_hgtmax", f"{height}"),
        ("t_ant_dir", "D"),
        ("t_spect_mask", pick("NS")),
    ]
    if art5 or number % 2 == 0:
        keys += [("t_sys_var", pick("DEF" if vhf else "ABC") + pick("12357"))]
        keys += [("t_rx_mode", pick(["FX", "PO", "PI", "MO"]))]
    else:
        keys += [("t_ref_plan_cfg", pick(["RPC1", "RPC2", "RPC3"]))]
    if art5:
        keys += [
            ("t_d_inuse", f"{2008 + below(12)}-{1 + below(12):02d}-{1 + below(28):02d}"),
            ("t_op_agcy", "001"),
            ("t_addr_code", "A"),
            ("t_op_hh_fr", "00:00"),
            ("t_op_hh_to", "24:00"),
            ("t_is_resub", "FALSE"),
            ("t_remark_conds_met", "TRUE"),
            ("t_signed_commitment", "TRUE"),
        ]
    else:
        keys += [("t_is_pub_req", pick(["TRUE", "FALSE"]))]
    keys += [("t_remarks", f"Réseau national, site {number + 1}"), ("t_int_remarks", "Fiche vérifiée par le bureau")]
    heights = [f"{height - below(height)}" for _ in AZIMUTHS]
    heights[below(36)] = f"{height}"
    sections = [
        ("ANT_HGT", [("t_eff_hgt", azimuth, value) for azimuth, value in zip(AZIMUTHS, heights)]),
        ("ANT_DIAGR_H", diagram()),
        ("ANT_DIAGR_V", diagram()),
        ("COORD", [("t_adm", None, adm) for adm in ("BEL", "D", "E", "I", "SUI")[: 1 + number % 5]]),
    ]
    return keys, sections


def plan_entry(number):
    entry = 1 + number % 5
    network = f"F-SFN-{number // 40:05d}"
    allotment = f"F-GT2-{number % 5000 + 1:06d}"
    keys = [("t_plan_entry", f"{entry}"), ("t_assgn_code", "SLCLL"[entry - 1])]
    if entry in (2, 3, 4):
        keys += [("t_sfn_id", network)]
    if entry in (3, 4, 5):
        keys += [("t_associated_adm_allot_id", allotment)]
    if entry in (3, 4):
        keys += [("t_associated_allot_sfn_id", network)]
    return keys


def diagram():
    values = [f"{below(300) / 10}" for _ in AZIMUTHS]
    values[below(36)] = "0"
    return [("t_attn", azimuth, value) for azimuth, value in zip(AZIMUTHS, values)]


def gt2(number, contours):
    # The allotments that share sub-areas differ in frequency, so none of them is another's duplicate.
    groups = max(contours // SUB_AREAS, 1)
    layer, group = divmod(number, groups)
    entry = 3 + number % 3
    keys = [
        ("t_notice_type", "GT2"),
        ("t_action", "ADD"),
        ("t_fragment", "KV19D"),
        ("t_adm_ref_id", f"F-GT2-{number + 1:06d}"),
        ("t_plan_entry", f"{entry}"),
    ]
    if entry != 5:
        keys += [("t_sfn_id", f"F-SFN-{number:05d}")]
    keys += [
        ("t_ctry", ADM),
        ("t_allot_name", f"{pick(PLACES)} {number + 1:06d}"),
        ("t_freq_assgn", UHF[(group + 10 * layer) % len(UHF)]),
        ("t_offset", "0"),
        ("t_polar", pick("HVMU")),
        ("t_ref_plan_cfg", pick(["RPC1", "RPC2", "RPC3"])),
        ("t_typ_ref_netwk", pick(["RN1", "RN2", "RN3", "RN4"])),
        ("t_spect_mask", pick("NS")),
        ("t_is_pub_req", "TRUE"),
        ("t_nb_sub_areas", f"{SUB_AREAS}"),
    ]
    keys += [("t_contour_id", contour_id(group * SUB_AREAS + place)) for place in range(SUB_AREAS)]
    keys += [("t_remarks", f"Zone de service {number + 1}")]
    return keys, []


def contour_id(number):
    return f"{number % CONTOUR_IDS + 1}"


def ga1(number):
    """A contour around a place on land, without crossings: its points are seen one after the other from the middle."""
    latitude, longitude = site(7 * number + number % len(LAND))
    count = POINTS_OF_A_CONTOUR[number % len(POINTS_OF_A_CONTOUR)]
    keys = [
        ("t_notice_type", "GA1"),
        ("t_action", "ADD"),
        ("t_ctry", ADM),
        ("t_contour_id", contour_id(number)),
        ("t_nb_test_pts", f"{count}"),
        ("t_remarks", f"Contour {number + 1}"),
    ]
    sections = []
    for point in range(count):
        angle = 2 * math.pi * point / count
        radius = 240 + 120 * rng.random()
        east = coordinate(longitude + round(radius * math.cos(angle)), 3)
        north = coordinate(latitude + round(radius * math.sin(angle)), 2)
        sections.append(("POINT", [("t_long", None, east), ("t_lat", None, north)]))
    return keys, sections


def notices(count):
    """Mixed in the order of a real file: of any 20 in a row 12 are GT1, 5 GT2 and 3 GA1."""
    order = "GT1 GT1 GT2 GT1 GA1 GT1 GT1 GT2 GT1 GT1 GT2 GT1 GA1 GT1 GT2 GT1 GT1 GA1 GT1 GT2".split()
    contours = min(sum(order[i % len(order)] == "GA1" for i in range(count)), CONTOUR_IDS)
    made = {"GT1": 0, "GT2": 0, "GA1": 0}
    for index in range(count):
        kind = order[index % len(order)]
        number = made[kind]
        made[kind] += 1
        yield gt1(number) if kind == "GT1" else gt2(number, contours) if kind == "GT2" else ga1(number)


def text_of(notice):
    keys, sections = notice
    lines = ["<NOTICE>"]
    lines += [f"{key} = {value}" for key, value in keys]
    for tag, values in sections:
        lines.append(f"<{tag}>")
        lines += [f"{key}@azm{azimuth} = {value}" if azimuth else f"{key} = {value}" for key, azimuth, value in values]
        lines.append(f"</{tag}>")
    lines += ["</NOTICE>", ""]
    return "\r\n".join(lines)


def xml_of(notice):
    keys, sections = notice
    lines = ["<NOTICE>"]
    lines += [f"<{key}>{escape(value)}</{key}>" for key, value in keys]
    for tag, values in sections:
        lines.append(f"<{tag}>")
        lines += [
            f'<{key} azm="{azimuth}">{value}</{key}>' if azimuth else f"<{key}>{value}</{key}>"
            for key, azimuth, value in values
        ]
        lines.append(f"</{tag}>")
    lines += ["</NOTICE>", ""]
    return "\n".join(lines)


SCHEMA_TYPES = {
    "text20": ("xs:string", '<xs:maxLength value="20"/><xs:pattern value="( ?[^ ])* ?"/>'),
    "text30": ("xs:string", '<xs:maxLength value="30"/><xs:pattern value="( ?[^ ])* ?"/>'),
    "length10": ("xs:string", '<xs:maxLength value="10"/>'),
    "length30": ("xs:string", '<xs:maxLength value="30"/>'),
    "length50": ("xs:string", '<xs:maxLength value="50"/>'),
    "length4": ("xs:string", '<xs:maxLength value="4"/>'),
    "length3": ("xs:string", '<xs:maxLength value="3"/>'),
    "length1": ("xs:string", '<xs:maxLength value="1"/>'),
    "code3": ("xs:string", '<xs:maxLength value="3"/><xs:pattern value=".*[^0-9.].*"/>'),
    "letter": ("xs:string", '<xs:pattern value="[^0-9]"/>'),
    "agency": ("xs:string", '<xs:pattern value="[0-9]{1,4}"/>'),
    "decimal": ("xs:decimal", ""),
    "integer": ("xs:integer", ""),
    "digits": ("xs:nonNegativeInteger", ""),
    "contour": ("xs:nonNegativeInteger", '<xs:pattern value="[0-9]{1,4}"/>'),
    "points": ("xs:nonNegativeInteger", '<xs:pattern value="[0-9]{1,2}"/>'),
    "entry": ("xs:integer", '<xs:minInclusive value="1"/><xs:maxInclusive value="5"/><xs:pattern value="."/>'),
    "system": ("xs:string", '<xs:pattern value="[A-F][12357]"/>'),
    "attenuation": ("xs:decimal", '<xs:pattern value=".{1,4}"/>'),
    "date": ("xs:date", '<xs:minInclusive value="2000-01-01"/>'),
    "longitude": ("xs:string", '<xs:pattern value=".(0[0-9]{2}|1[0-7][0-9])[0-5][0-9]([0-5][0-9])?"/>'),
    "latitude": ("xs:string", '<xs:pattern value=".[0-8][0-9][0-5][0-9]([0-5][0-9])?"/>'),
    "pointLongitude": ("xs:string", '<xs:pattern value=".(0[0-9]{2}|1[0-6][0-9])[0-5][0-9]([0-5][0-9])?"/>'),
    "pointLatitude": ("xs:string", '<xs:pattern value=".([0-7][0-9]|8[0-8])[0-5][0-9]([0-5][0-9])?"/>'),
}
SCHEMA_ENUMERATIONS = {
    "noticeType": "GT1 GS1 GS2 GT2 GA1 TB5 TB3 TB2",
    "plan": "KV19D",
    "fragment": "NTFD_PZ KV19D",
    "action": "MODIFY ADD SUPPRESS WITHDRAW CONFORM PARTB",
    "provision": "PZ11.2",
    "assignmentCode": "C L S",
    "polarization": "H V M U",
    "truth": "FALSE TRUE",
    "directivity": "ND D",
    "reception": "PO FX PI MO",
}
SCHEMA_KEYS = """
    t_notice_type noticeType, t_plan plan, t_fragment fragment, t_action action, t_prov provision,
    t_assgn_code assignmentCode, t_polar polarization, t_remark_conds_met truth, t_is_resub truth,
    t_signed_commitment truth, t_is_pub_req truth, t_ant_dir directivity, t_rx_mode reception, t_sys_var system,
    t_adm_ref_id text20, t_trg_adm_ref_id text20, t_plan_adm_ref_id text20, t_associated_adm_allot_id text20,
    t_site_name text30, t_allot_name text30, t_call_sign length10, t_sfn_id length30,
    t_associated_allot_sfn_id length30, t_ref_plan_cfg length4, t_typ_ref_netwk length3, t_spect_mask length1,
    t_plan_entry entry, t_freq_assgn decimal, t_trg_freq_assgn decimal, t_erp_h_dbw decimal, t_erp_v_dbw decimal,
    t_erp_beam_tilt_dbw decimal, t_beam_tilt_angle decimal, t_hgt_agl decimal, t_offset decimal, t_site_alt integer,
    t_eff_hgtmax integer, t_op_agcy agency, t_addr_code letter, t_ctry code3, t_geo_area code3,
    t_nb_sub_areas digits, t_contour_id contour, t_nb_test_pts points, t_long longitude, t_lat latitude,
    t_trg_long longitude, t_trg_lat latitude, t_d_inuse date, t_d_expiry date, t_d_adm_ntc xs:string,
    t_remarks xs:string, t_int_remarks xs:string, t_op_hh_fr xs:string, t_op_hh_to xs:string
"""


def schema():
    """Asks for the value forms that the check of level 1 asks for; like it, for no order and no number of keys."""
    out = ['<?xml version="1.0"?>', '<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema">']

    def value_form(name, base, facets):
        form = f'<xs:restriction base="{base}">{facets}</xs:restriction>'
        out.append(f'<xs:simpleType name="{name}">{form}</xs:simpleType>')

    def any_of(name, elements):
        out.append(f'<xs:complexType name="{name}"><xs:choice minOccurs="0" maxOccurs="unbounded">')
        out.extend(f'<xs:element name="{key}" type="{kind}"/>' for key, kind in elements)
        out.append("</xs:choice></xs:complexType>")

    def azimuth_values(name, base):
        out.append(
            f'<xs:complexType name="{name}"><xs:simpleContent><xs:extension base="{base}">'
            '<xs:attribute name="azm" type="decimal" use="required"/>'
            "</xs:extension></xs:simpleContent></xs:complexType>"
        )

    for name, (base, facets) in SCHEMA_TYPES.items():
        value_form(name, base, facets)
    for name, values in SCHEMA_ENUMERATIONS.items():
        value_form(name, "xs:string", "".join(f'<xs:enumeration value="{value}"/>' for value in values.split()))
    azimuth_values("heightValue", "integer")
    azimuth_values("attenuationValue", "attenuation")
    any_of("heights", [("t_eff_hgt", "heightValue")])
    any_of("diagram", [("t_attn", "attenuationValue")])
    any_of("coordination", [("t_adm", "code3")])
    any_of("point", [("t_long", "pointLongitude"), ("t_lat", "pointLatitude")])
    head = [("t_adm", "code3"), ("t_email_addr", "length50"), ("t_char_set", "xs:string"), ("t_d_sent", "xs:string")]
    any_of("head", head)
    any_of("tail", [("t_num_notices", "integer")])
    keys = [tuple(pair.split()) for pair in SCHEMA_KEYS.split(",")]
    sections = [("ANT_HGT", "heights"), ("ANT_DIAGR_H", "diagram"), ("ANT_DIAGR_V", "diagram")]
    sections += [("COORD", "coordination"), ("COORDINATION", "coordination"), ("POINT", "point")]
    any_of("notice", keys + sections)
    out.append('<xs:element name="NOTICES"><xs:complexType><xs:sequence>')
    out.append('<xs:element name="HEAD" type="head"/>')
    out.append('<xs:element name="NOTICE" type="notice" maxOccurs="unbounded"/>')
    out.append('<xs:element name="TAIL" type="tail"/>')
    out.append("</xs:sequence></xs:complexType></xs:element>")
    out.append("</xs:schema>")
    return "\n".join(out) + "\n"


def write_text(path, count):
    with open(path, "w", encoding="cp1252", newline="") as text:
        text.write(f"<HEAD>\r\nt_adm = {ADM}\r\nt_email_addr = notices@adm.example\r\n</HEAD>\r\n")
        for notice in notices(count):
            text.write(text_of(notice))
            yield notice
        text.write(f"<TAIL>\r\nt_num_notices = {count}\r\n</TAIL>\r\n")


def write_xml(path, count, all_notices):
    with open(path, "w", encoding="utf-8", newline="") as xml:
        xml.write('<?xml version="1.0" encoding="UTF-8"?>\n<NOTICES>\n')
        xml.write(f"<HEAD>\n<t_adm>{ADM}</t_adm>\n<t_email_addr>notices@adm.example</t_email_addr>\n</HEAD>\n")
        for notice in all_notices:
            xml.write(xml_of(notice))
        xml.write(f"<TAIL>\n<t_num_notices>{count}</t_num_notices>\n</TAIL>\n</NOTICES>\n")


def main():
    arguments = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    arguments.add_argument("folder", nargs="?", default="build/bench-input")
    arguments.add_argument("-n", "--notices", type=int, default=20000)
    arguments.add_argument("--text-only", action="store_true", help="neither XML nor schema")
    asked = arguments.parse_args()
    os.makedirs(asked.folder, exist_ok=True)
    base = os.path.join(asked.folder, f"notices-{asked.notices}")
    written = write_text(base + ".txt", asked.notices)
    if asked.text_only:
        for _ in written:
            pass
        return
    write_xml(base + ".xml", asked.notices, written)
    with open(os.path.join(asked.folder, "notices.xsd"), "w", encoding="utf-8") as out:
        out.write(schema())


if __name__ == "__main__":
    main()
