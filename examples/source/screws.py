"""Screws, set screws, plugs and rivets of the first release. Dimensions in millimetres."""

from .model import Table, between, fields, listed, rows

DATE = "2021-11-30T09:15:00Z"

LENGTHS = [2, 3, 4, 5, 6, 8, 10, 12, 16, 20, 25, 30, 35, 40, 45, 50, 55, 60, 65, 70, 80, 90, 100,
           110, 120, 130, 140, 150, 160, 180, 200, 220, 240, 260, 280, 300, 320, 340, 360]

PITCH = {"M3": 0.5, "M4": 0.7, "M5": 0.8, "M6": 1, "M8": 1.25, "M10": 1.5, "M12": 1.75,
         "M14": 2, "M16": 2, "M20": 2.5, "M24": 3, "M30": 3.5, "M36": 4}


def iso4014():
    sizes = [  # size, k, s, e, dw, b to 125, b to 200, lengths from, to
        ("M3", 2, 5.5, 6.01, 4.57, 12, None, 20, 30), ("M4", 2.8, 7, 7.66, 5.88, 14, None, 25, 40),
        ("M5", 3.5, 8, 8.79, 6.88, 16, None, 25, 50), ("M6", 4, 10, 11.05, 8.88, 18, None, 30, 60),
        ("M8", 5.3, 13, 14.38, 11.63, 22, None, 40, 80),
        ("M10", 6.4, 16, 17.77, 14.63, 26, None, 45, 100),
        ("M12", 7.5, 18, 20.03, 16.63, 30, None, 50, 120),
        ("M14", 8.8, 21, 23.36, 19.64, 34, 40, 60, 140),
        ("M16", 10, 24, 26.75, 22.49, 38, 44, 65, 160),
        ("M20", 12.5, 30, 33.53, 28.19, 46, 52, 80, 200),
        ("M24", 15, 36, 39.98, 33.61, 54, 60, 90, 240),
        ("M30", 18.7, 46, 50.85, 42.75, 66, 72, 110, 300),
        ("M36", 22.5, 55, 60.79, 51.11, 78, 84, 140, 360)]
    data = [(d, PITCH[d], k, s, e, dw, b1, b2, listed(between(LENGTHS, low, high)))
            for d, k, s, e, dw, b1, b2, low, high in sizes]
    return Table("screws/iso4014", "ISO 4014", "ISO 4014 - {Dia} x {L}",
                 "Sechskantschraube mit Schaft", "Hexagon head bolt with shank", fields("""
        Dia | Nenngröße | Nominal size | text key
        P | Gewindesteigung | Thread pitch
        k | Kopfhöhe | Head height
        s | Schlüsselweite | Width across flats
        e | Eckenmaß | Width across corners
        dw | Auflagedurchmesser | Washer face diameter
        b1 | Gewindelänge bis L 125 | Thread length up to L 125
        b2 | Gewindelänge bis L 200 | Thread length up to L 200
        L | Länge | Length | range
        """), rows("Dia P k s e dw b1 b2 L", data), DATE)


def din933():
    sizes = [("M3", 2, 5.5, 6.01, 6, 30), ("M4", 2.8, 7, 7.66, 8, 40), ("M5", 3.5, 8, 8.79, 10, 50),
             ("M6", 4, 10, 11.05, 10, 60), ("M8", 5.3, 13, 14.38, 12, 80),
             ("M10", 6.4, 17, 18.9, 16, 100), ("M12", 7.5, 19, 21.1, 20, 120),
             ("M14", 8.8, 22, 24.49, 25, 120), ("M16", 10, 24, 26.75, 25, 140),
             ("M20", 12.5, 30, 33.53, 30, 160), ("M24", 15, 36, 39.98, 40, 160)]
    data = [(d, PITCH[d], k, s, e, length, "8.8") for d, k, s, e, low, high in sizes
            for length in between(LENGTHS, low, high)]
    return Table("screws/din933", "DIN 933", "DIN 933 - {Dia} x {L} - {FK}",
                 "Sechskantschraube mit Gewinde bis Kopf", "Hexagon head screw, full thread",
                 fields("""
        Dia | Nenngröße | Nominal size | text key
        P | Gewindesteigung | Thread pitch
        k | Kopfhöhe | Head height
        s | Schlüsselweite | Width across flats
        e | Eckenmaß | Width across corners
        L | Länge | Length | key
        FK | Festigkeitsklasse | Property class | text
        """), rows("Dia P k s e L FK", data), DATE)


def iso4762():
    sizes = [("M3", 5.5, 3, 2.5, 18, 5, 30), ("M4", 7, 4, 3, 20, 6, 40), ("M5", 8.5, 5, 4, 22, 8, 50),
             ("M6", 10, 6, 5, 24, 10, 60), ("M8", 13, 8, 6, 28, 12, 80),
             ("M10", 16, 10, 8, 32, 16, 100), ("M12", 18, 12, 10, 36, 20, 120),
             ("M16", 24, 16, 14, 44, 25, 160), ("M20", 30, 20, 17, 52, 30, 160)]
    data = [(d, PITCH[d], dk, k, s, min(b, length), length)
            for d, dk, k, s, b, low, high in sizes for length in between(LENGTHS, low, high)]
    return Table("screws/iso4762", "ISO 4762", "ISO 4762 - {Dia} x {L}",
                 "Zylinderschraube mit Innensechskant", "Hexagon socket head cap screw", fields("""
        Dia | Nenngröße | Nominal size | text key
        P | Gewindesteigung | Thread pitch
        dk | Kopfdurchmesser | Head diameter
        k | Kopfhöhe | Head height
        s | Schlüsselweite | Socket size
        b | Gewindelänge | Thread length
        L | Länge | Length | key
        """), rows("Dia P dk k s b L", data), DATE)


def iso10642():
    sizes = [("M3", 6.72, 1.86, 2, 8, 30), ("M4", 8.96, 2.48, 2.5, 8, 40), ("M5", 11.2, 3.1, 3, 8, 50),
             ("M6", 13.44, 3.72, 4, 8, 60), ("M8", 17.92, 4.96, 5, 10, 80),
             ("M10", 22.4, 6.2, 6, 12, 100), ("M12", 26.88, 7.44, 8, 20, 100),
             ("M16", 33.6, 8.8, 10, 30, 100), ("M20", 40.32, 10.16, 12, 35, 100)]
    data = [(d, PITCH[d], dk, k, s, listed(between(LENGTHS, low, high)))
            for d, dk, k, s, low, high in sizes]
    return Table("screws/iso10642", "ISO 10642", "ISO 10642 - {Dia} x {L}",
                 "Senkschraube mit Innensechskant", "Hexagon socket countersunk head screw",
                 fields("""
        Dia | Nenngröße | Nominal size | text key
        P | Gewindesteigung | Thread pitch
        dk | Kopfdurchmesser, theoretisch | Theoretical head diameter
        k | Kopfhöhe | Head height
        s | Schlüsselweite | Socket size
        L | Länge | Length | range
        """), rows("Dia P dk k s L", data), DATE)


def iso7380():
    sizes = [("M3", 5.7, 6.9, 1.65, 2, 6, 12), ("M4", 7.6, 9.4, 2.2, 2.5, 8, 20),
             ("M5", 9.5, 11.8, 2.75, 3, 10, 30), ("M6", 10.5, 13.6, 3.3, 4, 10, 30),
             ("M8", 14, 17.8, 4.4, 5, 10, 40), ("M10", 17.5, 21.9, 5.5, 6, 16, 40),
             ("M12", 21, 26, 6.6, 8, 16, 50)]
    data = []
    for form, head in (("ohne Bund", 1), ("mit Bund", 2)):
        data += [(form, size[0], PITCH[size[0]], size[head], size[3], size[4], length)
                 for size in sizes for length in between(LENGTHS, size[5], size[6])]
    return Table("screws/iso7380", "ISO 7380", "ISO 7380 - {Dia} x {L}",
                 "Flachkopfschraube mit Innensechskant", "Hexagon socket button head screw",
                 fields("""
        Form | Kopfform | Head form | text key
        Dia | Nenngröße | Nominal size | text key
        P | Gewindesteigung | Thread pitch
        dk | Kopf- oder Bunddurchmesser | Diameter of head or collar
        k | Kopfhöhe | Head height
        s | Schlüsselweite | Socket size
        L | Länge | Length | key
        """), rows("Form Dia P dk k s L", data), DATE)


def iso1207():
    sizes = [("M3", 5.5, 2, 0.8, 0.85, 4, 30), ("M4", 7, 2.6, 1.2, 1.1, 5, 40),
             ("M5", 8.5, 3.3, 1.2, 1.3, 6, 50), ("M6", 10, 3.9, 1.6, 1.6, 8, 60),
             ("M8", 13, 5, 2, 2, 10, 80), ("M10", 16, 6, 2.5, 2.4, 12, 80)]
    data = [(d, PITCH[d], dk, k, n, t, listed(between(LENGTHS, low, high)))
            for d, dk, k, n, t, low, high in sizes]
    return Table("screws/iso1207", "ISO 1207", "ISO 1207 - {Dia} x {L}",
                 "Zylinderschraube mit Schlitz", "Slotted cheese head screw", fields("""
        Dia | Nenngröße | Nominal size | text key
        P | Gewindesteigung | Thread pitch
        dk | Kopfdurchmesser | Head diameter
        k | Kopfhöhe | Head height
        n | Schlitzbreite | Slot width
        t | Schlitztiefe | Slot depth
        L | Länge | Length | range
        """), rows("Dia P dk k n t L", data), DATE)


def din603():
    sizes = [("M5", 13.55, 3.3, 5.48, 4.1, 16, 80), ("M6", 16.55, 3.88, 6.48, 4.6, 16, 120),
             ("M8", 20.65, 4.88, 8.58, 5.6, 20, 150), ("M10", 24.65, 5.38, 10.58, 6.6, 20, 200),
             ("M12", 30.65, 6.95, 12.7, 8.75, 30, 200), ("M16", 38.8, 8.95, 16.7, 12.9, 45, 200)]
    data = [(d, PITCH[d], dk, k, v, f, listed(between(LENGTHS, low, high)))
            for d, dk, k, v, f, low, high in sizes]
    return Table("screws/din603", "DIN 603", "DIN 603 - {Dia} x {L}",
                 "Flachrundschraube mit Vierkantansatz", "Mushroom head square neck bolt",
                 fields("""
        Dia | Nenngröße | Nominal size | text key
        P | Gewindesteigung | Thread pitch
        dk | Kopfdurchmesser | Head diameter
        k | Kopfhöhe | Head height
        v | Vierkant | Width of the square neck
        f | Vierkanthöhe | Height of the square neck
        L | Länge | Length | range
        """), rows("Dia P dk k v f L", data), DATE)


def set_screw(number, point, english, name):
    sizes = [("M3", 1.5, 2, 3, 16), ("M4", 2, 2.5, 4, 20), ("M5", 2.5, 3.5, 5, 25),
             ("M6", 3, 4, 6, 30), ("M8", 4, 5.5, 8, 40), ("M10", 5, 7, 10, 50),
             ("M12", 6, 8.5, 12, 60)]
    ends = {"iso4026": 0, "iso4029": 1.5}[name]
    data = [(d, PITCH[d], s, dp - ends if ends else dp, listed(between(LENGTHS, low, high)))
            for d, s, dp, low, high in sizes]
    return Table(f"screws/{name}", number, number + " - {Dia} x {L}",
                 f"Gewindestift mit Innensechskant, {point}", f"Socket set screw, {english}",
                 fields("""
        Dia | Nenngröße | Nominal size | text key
        P | Gewindesteigung | Thread pitch
        s | Schlüsselweite | Socket size
        dp | Durchmesser der Spitze | Diameter of the point
        L | Länge | Length | range
        """), rows("Dia P s dp L", data), DATE)


def plug(path, norm, title, english, heads, broken=False):
    sizes = [("G1/8", 9.73, 14, 8), ("G1/4", 13.16, 18, 12), ("G3/8", 16.66, 22, 12),
             ("G1/2", 20.96, 26, 14), ("G3/4", 26.44, 32, 16), ("G1", 33.25, 39, 16),
             ("G1 1/4", 41.91, 49, 16), ("G1 1/2", 47.8, 55, 16)]
    data = [(d, d1, d2, i, s, material) for (d, d1, d2, i), s in zip(sizes, heads)
            for material in ("St", "A4")]
    return Table(path, norm, norm + " - {G} - {Werkstoff}", title, english, fields("""
        G | Rohrgewinde | Pipe thread | text key
        d1 | Gewindeaußendurchmesser | Major diameter of the thread
        d2 | Bunddurchmesser | Collar diameter
        i | Einschraublänge | Screw-in length
        s | Schlüsselweite | Size of the key
        Werkstoff | Werkstoff | Material | text key
        """), rows("G d1 d2 i s Werkstoff", data), DATE, broken=broken)


def iso15983():
    sizes = [(3, 6.3, 0.9, 3.1, 6, 16), (3.2, 6.7, 1, 3.3, 6, 16), (4, 8.4, 1.2, 4.1, 6, 18),
             (4.8, 10.1, 1.4, 4.9, 8, 25), (5, 10.5, 1.5, 5.1, 8, 25)]
    data = [(d, dk, k, dh, length, round(length - 1.1 * d, 1)) for d, dk, k, dh, low, high in sizes
            for length in between([6, 8, 10, 12, 16, 18, 20, 25], low, high)]
    return Table("rivets/iso15983", "ISO 15983", "ISO 15983 - {d} x {L}",
                 "Blindniet mit Flachkopf", "Blind rivet with protruding head", fields("""
        d | Nenndurchmesser | Nominal diameter | key
        dk | Kopfdurchmesser | Head diameter
        k | Kopfhöhe | Head height
        dh | Bohrung | Hole diameter
        L | Länge | Length | key
        Klemm | Größte Klemmlänge | Longest grip
        """), rows("d dk k dh L Klemm", data), DATE)


def tables():
    return [iso4014(), din933(), iso4762(), iso10642(), iso7380(), iso1207(), din603(),
            set_screw("ISO 4026", "Kegelstumpf", "flat point", "iso4026"),
            set_screw("ISO 4029", "Ringschneide", "cup point", "iso4029"),
            plug("plugs/din908", "DIN 908", "Verschlussschraube mit Innensechskant",
                 "Hexagon socket screw plug", (5, 6, 8, 10, 12, 17, 22, 24), broken=True),
            plug("plugs/din910", "DIN 910", "Verschlussschraube mit Außensechskant",
                 "Hexagon head screw plug", (10, 13, 17, 19, 24, 27, 30, 36)),
            iso15983()]
