"""Bearings, seals and profiles of the first release. Dimensions in millimetres."""

from .model import Table, fields, rows, stepped

DATE = "2021-12-07T07:30:00Z"

BORE = [10, 12, 15, 17, 20, 25, 30, 35, 40, 45, 50, 55, 60, 65, 70, 75, 80, 85, 90, 95, 100]
# Outer diameter and width by diameter series, in the order of BORE.
SERIES = {
    "60": [(26, 8), (28, 8), (32, 9), (35, 10), (42, 12), (47, 12), (55, 13), (62, 14), (68, 15),
           (75, 16), (80, 16), (90, 18), (95, 18), (100, 18), (110, 20), (115, 20), (125, 22),
           (130, 22), (140, 24), (145, 24), (150, 24)],
    "62": [(30, 9), (32, 10), (35, 11), (40, 12), (47, 14), (52, 15), (62, 16), (72, 17), (80, 18),
           (85, 19), (90, 20), (100, 21), (110, 22), (120, 23), (125, 24), (130, 25), (140, 26),
           (150, 28), (160, 30), (170, 32), (180, 34)],
    "63": [(35, 11), (37, 12), (42, 13), (47, 14), (52, 15), (62, 17), (72, 19), (80, 21), (90, 23),
           (100, 25), (110, 27), (120, 29), (130, 31), (140, 33), (150, 35), (160, 37), (170, 39),
           (180, 41), (190, 43), (200, 45), (215, 47)]}


def sizes_of(series):
    """Symbol, bore, outer diameter, width of each size of a series."""
    return [(f"{series}{n:02}", d, D, B) for n, (d, (D, B)) in enumerate(zip(BORE, SERIES[series]))]


def din625():
    data = [(symbol + seal, series, d, D, B, kind) for series in SERIES
            for symbol, d, D, B in sizes_of(series)
            for seal, kind in (("", "offen"), ("-2Z", "Deckscheibe"), ("-2RS", "Dichtscheibe"))]
    return Table("bearings/din625", "DIN 625", "DIN 625 - {Kz}", "Rillenkugellager",
                 "Deep groove ball bearing", fields("""
        Kz | Kurzzeichen | Symbol | text key
        Reihe | Lagerreihe | Bearing series | text
        d | Bohrung | Bore
        D | Außendurchmesser | Outer diameter
        B | Breite | Width
        Abd | Abdichtung | Seal | text
        """), rows("Kz Reihe d D B Abd", data), DATE)


def din628():
    data = [(symbol.replace("6", "7", 1) + "B", d, D, B, 40) for series in ("62", "63")
            for symbol, d, D, B in sizes_of(series)[:15]]
    return Table("bearings/din628", "DIN 628", "DIN 628 - {Kz}", "Schrägkugellager",
                 "Angular contact ball bearing", fields("""
        Kz | Kurzzeichen | Symbol | text key
        d | Bohrung | Bore
        D | Außendurchmesser | Outer diameter
        B | Breite | Width
        Winkel | Druckwinkel in Grad | Contact angle in degrees | bare
        """), rows("Kz d D B Winkel", data), DATE)


def din5412():
    data = [(symbol.replace("6", form + "2", 1).replace("22", "2", 1), form, d, D, B)
            for form in ("NU", "NJ") for symbol, d, D, B in sizes_of("62")[3:]]
    return Table("bearings/din5412", "DIN 5412", "DIN 5412 - {Kz}", "Zylinderrollenlager",
                 "Cylindrical roller bearing", fields("""
        Kz | Kurzzeichen | Symbol | text key
        Bauform | Bauform | Type | text
        d | Bohrung | Bore
        D | Außendurchmesser | Outer diameter
        B | Breite | Width
        """), rows("Kz Bauform d D B", data), DATE)


def din711():
    sizes = [(10, 24, 9), (12, 26, 9), (15, 28, 9), (17, 30, 9), (20, 35, 10), (25, 42, 11),
             (30, 47, 11), (35, 52, 12), (40, 60, 13), (45, 65, 14), (50, 70, 14), (55, 78, 16),
             (60, 85, 17), (65, 90, 18), (70, 95, 18), (75, 100, 19), (80, 105, 19), (85, 110, 19),
             (90, 120, 22), (100, 135, 25)]
    numbers = list(range(19)) + [20]
    data = [(f"511{n:02}", *size) for n, size in zip(numbers, sizes)]
    return Table("bearings/din711", "DIN 711", "DIN 711 - {Kz}", "Axial-Rillenkugellager",
                 "Thrust ball bearing", fields("""
        Kz | Kurzzeichen | Symbol | text key
        d | Bohrung der Wellenscheibe | Bore of the shaft washer
        D | Außendurchmesser | Outer diameter
        H | Bauhöhe | Height
        """), rows("Kz d D H", data), DATE)


def din3760():
    sizes = {10: (7, [19, 22, 24, 26]), 12: (7, [19, 22, 24, 28, 30]), 15: (7, [24, 26, 30, 32, 35]),
             17: (7, [28, 30, 32, 35, 40]), 20: (7, [30, 32, 35, 40, 47]), 25: (7, [35, 38, 40, 42, 47, 52]),
             30: (7, [40, 42, 47, 52, 62]), 35: (8, [47, 50, 52, 62]), 40: (8, [52, 55, 62, 72]),
             45: (8, [60, 62, 65, 72]), 50: (8, [65, 68, 72, 80]), 55: (8, [70, 72, 80]),
             60: (8, [75, 80, 85, 90]), 65: (10, [85, 90]), 70: (10, [90, 95]), 80: (10, [100, 110]),
             90: (12, [110, 120]), 100: (12, [120, 125, 130])}
    data = [(form, d, D, b, material) for form in ("A", "AS") for material in ("NB", "FP")
            if form == "A" or material == "NB"
            for d, (b, outer) in sizes.items() for D in outer]
    return Table("seals/din3760", "DIN 3760", "DIN 3760 - {Form} {d1} x {d2} x {b} - {Werkstoff}",
                 "Radial-Wellendichtring", "Rotary shaft seal", fields("""
        Form | Form (AS mit Staublippe) | Form (AS has a dust lip) | text key
        d1 | Wellendurchmesser | Shaft diameter | key
        d2 | Außendurchmesser | Outer diameter | key
        b | Breite | Width
        Werkstoff | Elastomer | Elastomer | text key
        """), rows("Form d1 d2 b Werkstoff", data), DATE)


def iso3601():
    sizes = {1.78: [2.9, 3.68, 4.47, 5.28, 6.07, 7.65, 9.25, 10.82, 12.42, 14, 15.6, 17.17, 18.77,
                    20.35, 21.95, 23.52, 25.12, 26.7, 28.3, 29.87, 31.47, 33.05, 34.65],
             2.62: [9.19, 10.77, 12.37, 13.94, 15.54, 17.12, 18.72, 20.29, 21.89, 23.47, 25.07,
                    26.64, 28.24, 29.82, 31.42, 32.99, 34.59, 36.17, 37.77, 39.34],
             3.53: [18.64, 20.22, 21.82, 23.39, 24.99, 26.57, 28.17, 29.74, 31.34, 32.92, 34.52,
                    36.09, 37.69, 40.87, 44.04, 47.22, 50.39, 53.57, 56.74, 59.92],
             5.33: [37.47, 40.64, 43.82, 46.99, 50.17, 53.34, 56.52, 59.69]}
    data = [(d1, d2, hardness) for d2, inner in sizes.items() for d1 in inner for hardness in (70, 90)]
    return Table("seals/iso3601", "ISO 3601", "ISO 3601 - {d1} x {d2} - {Haerte} Shore",
                 "O-Ring", "O-ring", fields("""
        d1 | Innendurchmesser | Inner diameter | key
        d2 | Schnurstärke | Cross section | key
        Haerte | Härte Shore A | Hardness Shore A | key bare
        """), rows("d1 d2 Haerte", data), DATE)


def din7603():
    sizes = [(6, 10, 1), (8, 12, 1), (10, 14, 1), (12, 16, 1.5), (14, 18, 1.5), (16, 20, 1.5),
             (18, 22, 1.5), (20, 24, 1.5), (22, 27, 1.5), (24, 30, 2), (27, 32, 2), (30, 36, 2),
             (33, 39, 2), (36, 42, 2), (42, 49, 2), (48, 55, 2)]
    data = [(d1, d2, s, material) for d1, d2, s in sizes for material in ("Cu", "Al", "Fiber")]
    return Table("seals/din7603", "DIN 7603", "DIN 7603 - A {d1} x {d2} - {Werkstoff}", "Dichtring",
                 "Sealing ring", fields("""
        d1 | Innendurchmesser | Inner diameter | key
        d2 | Außendurchmesser | Outer diameter | key
        s | Dicke | Thickness
        Werkstoff | Werkstoff | Material | text key
        """), rows("d1 d2 s Werkstoff", data), DATE)


BEAM = """
        Kz | Kurzzeichen | Symbol | text key
        h | Höhe | Height
        b | Breite | Width
        tw | Stegdicke | Web thickness
        tf | Flanschdicke | Flange thickness
        r | Ausrundung | Root radius
        A | Querschnitt in cm² | Section in cm² | bare
        G | Masse in kg/m | Mass in kg/m | bare
        L | Lieferlänge | Stock length | range
        """
BEAM_NAMES = "Kz h b tw tf r A G L"
STOCK = stepped(6000, 18000, 1000)


def din1025_5():
    sizes = [(80, 46, 3.8, 5.2, 5, 7.64, 6), (100, 55, 4.1, 5.7, 7, 10.3, 8.1),
             (120, 64, 4.4, 6.3, 7, 13.2, 10.4), (140, 73, 4.7, 6.9, 7, 16.4, 12.9),
             (160, 82, 5, 7.4, 9, 20.1, 15.8), (180, 91, 5.3, 8, 9, 23.9, 18.8),
             (200, 100, 5.6, 8.5, 12, 28.5, 22.4), (220, 110, 5.9, 9.2, 12, 33.4, 26.2),
             (240, 120, 6.2, 9.8, 15, 39.1, 30.7), (270, 135, 6.6, 10.2, 15, 45.9, 36.1),
             (300, 150, 7.1, 10.7, 15, 53.8, 42.2), (330, 160, 7.5, 11.5, 18, 62.6, 49.1),
             (360, 170, 8, 12.7, 18, 72.7, 57.1), (400, 180, 8.6, 13.5, 21, 84.5, 66.3),
             (450, 190, 9.4, 14.6, 21, 98.8, 77.6), (500, 200, 10.2, 16, 21, 116, 90.7),
             (550, 210, 11.1, 17.2, 24, 134, 106), (600, 220, 12, 19, 24, 156, 122)]
    data = [(f"IPE {size[0]}", *size, STOCK) for size in sizes]
    return Table("profiles/din1025-5", "DIN 1025-5", "DIN 1025-5 - {Kz} x {L}", "I-Träger IPE",
                 "I-beam, medium flange", fields(BEAM), rows(BEAM_NAMES, data), DATE)


WIDE = {  # nominal: h, tw, tf, r, A, G of the light series; tw, tf, A, G of the normal series
    100: (96, 5, 8, 12, 21.2, 16.7, 6, 10, 26, 20.4),
    120: (114, 5, 8, 12, 25.3, 19.9, 6.5, 11, 34, 26.7),
    140: (133, 5.5, 8.5, 12, 31.4, 24.7, 7, 12, 43, 33.7),
    160: (152, 6, 9, 15, 38.8, 30.4, 8, 13, 54.3, 42.6),
    180: (171, 6, 9.5, 15, 45.3, 35.5, 8.5, 14, 65.3, 51.2),
    200: (190, 6.5, 10, 18, 53.8, 42.3, 9, 15, 78.1, 61.3),
    220: (210, 7, 11, 18, 64.3, 50.5, 9.5, 16, 91, 71.5),
    240: (230, 7.5, 12, 21, 76.8, 60.3, 10, 17, 106, 83.2),
    260: (250, 7.5, 12.5, 24, 86.8, 68.2, 10, 17.5, 118, 93),
    280: (270, 8, 13, 24, 97.3, 76.4, 10.5, 18, 131, 103),
    300: (290, 8.5, 14, 27, 112, 88.3, 11, 19, 149, 117)}


def wide_flange(part, letter, title, english):
    data = []
    for size, (h, tw, tf, r, A, G, tw2, tf2, A2, G2) in WIDE.items():
        light = (h, size, tw, tf, r, A, G)
        normal = (size, size, tw2, tf2, r, A2, G2)
        data.append((f"HE{letter} {size}", *(light if letter == "A" else normal), STOCK))
    return Table(f"profiles/din1025-{part}", f"DIN 1025-{part}", f"DIN 1025-{part} - " + "{Kz} x {L}",
                 title, english, fields(BEAM), rows(BEAM_NAMES, data), DATE)


def din1026():
    sizes = [(80, 45, 6, 8, 8.64), (100, 50, 6, 8.5, 10.6), (120, 55, 7, 9, 13.4), (140, 60, 7, 10, 16),
             (160, 65, 7.5, 10.5, 18.8), (180, 70, 8, 11, 22), (200, 75, 8.5, 11.5, 25.3),
             (220, 80, 9, 12.5, 29.4), (240, 85, 9.5, 13, 33.2), (260, 90, 10, 14, 37.9),
             (300, 100, 10, 16, 46.2)]
    data = [(f"U {h}", h, b, tw, tf, G, stepped(6000, 12000, 500)) for h, b, tw, tf, G in sizes]
    return Table("profiles/din1026", "DIN 1026", "DIN 1026 - {Kz} x {L}", "U-Profil",
                 "Channel section", fields("""
        Kz | Kurzzeichen | Symbol | text key
        h | Höhe | Height
        b | Breite | Width
        tw | Stegdicke | Web thickness
        tf | Flanschdicke | Flange thickness
        G | Masse in kg/m | Mass in kg/m | bare
        L | Lieferlänge | Stock length | range
        """), rows("Kz h b tw tf G L", data), DATE)


def en10056():
    sizes = [(20, 3, 0.88), (25, 3, 1.12), (30, 3, 1.36), (30, 4, 1.78), (35, 4, 2.09), (40, 4, 2.42),
             (40, 5, 2.97), (45, 4.5, 3.06), (50, 4, 3.06), (50, 5, 3.77), (50, 6, 4.47),
             (60, 5, 4.57), (60, 6, 5.42), (60, 8, 7.09), (65, 7, 6.83), (70, 6, 6.38), (70, 7, 7.38),
             (75, 6, 6.85), (75, 8, 8.99), (80, 8, 9.63), (80, 10, 11.9), (90, 8, 10.9), (90, 9, 12.2),
             (90, 10, 13.4), (100, 8, 12.2), (100, 10, 15), (100, 12, 17.8), (120, 10, 18.2),
             (120, 12, 21.6), (150, 10, 23), (150, 12, 27.3), (150, 15, 33.8)]
    return Table("profiles/en10056", "EN 10056-1", "EN 10056-1 - {a} x {a} x {t}",
                 "Winkelprofil, gleichschenklig", "Equal leg angle", fields("""
        a | Schenkellänge | Leg length | key
        t | Schenkeldicke | Leg thickness | key
        G | Masse in kg/m | Mass in kg/m | bare
        """), rows("a t G", sizes), DATE)


def en10219():
    thickness = {20: (2,), 25: (2, 3), 30: (2, 3), 40: (2, 3, 4), 50: (2, 3, 4, 5), 60: (3, 4, 5),
                 70: (3, 4, 5), 80: (3, 4, 5, 6), 90: (4, 5, 6), 100: (4, 5, 6, 8), 120: (5, 6, 8, 10),
                 150: (6, 8, 10)}
    data = []
    for b, walls in thickness.items():
        for t in walls:
            # Corner radii 2 t outside and t inside; steel of 7.85 kg/dm3.
            area = 4 * t * (b - t) - (4 - 3.14159265) * (4 * t * t - t * t)
            data.append((b, t, round(area / 100, 2), round(area * 0.00785, 2)))
    return Table("profiles/en10219", "EN 10219-2", "EN 10219-2 - {b} x {b} x {t}",
                 "Quadratisches Hohlprofil", "Square hollow section", fields("""
        b | Seitenlänge | Side length | key
        t | Wanddicke | Wall thickness | key
        A | Querschnitt in cm² | Section in cm² | bare
        G | Masse in kg/m | Mass in kg/m | bare
        """), rows("b t A G", data), DATE)


def tables():
    return [din625(), din628(), din5412(), din711(), din3760(), iso3601(), din7603(), din1025_5(),
            wide_flange("2", "B", "I-Träger HEB", "I-beam, wide flange"),
            wide_flange("3", "A", "I-Träger HEA", "I-beam, wide flange, light"),
            din1026(), en10056(), en10219()]
