"""GeoJSON of fields and prescriptions: held against an independent reading of the documents, and against what RFC 7946
asks of any geometry, whatever the documents hold."""
import itertools
import json
import pathlib
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from fractions import Fraction

from tool import ALL_GOOD, EXAMPLE_SETS, NO_RESULT, ROOT, SOME_FAILED, TransferSetTest, run, task_data

sys.path.insert(0, str(ROOT / "tests" / "generator"))
import transfer_set  # noqa: E402

DEPTH = {"Point": 0, "MultiPoint": 1, "LineString": 1, "Polygon": 2, "MultiPolygon": 3}


def point(east, north, type="2", **attributes):
    text = "".join(f' {name}="{value}"' for name, value in attributes.items())
    return f'<PNT A="{type}" C="{north}" D="{east}"{text}/>'


def line(type, *positions, **attributes):
    text = "".join(f' {name}="{value}"' for name, value in attributes.items())
    return f'<LSG A="{type}"{text}>{"".join(point(*position) for position in positions)}</LSG>'


def square(low, high, type="1", turn=1):
    corners = [(low, low), (high, low), (high, high), (low, high), (low, low)]
    return line(type, *corners[::turn])


def polygon(*rings, type="1"):
    return f'<PLN A="{type}">{"".join(rings)}</PLN>'


def field(content, name="Long Meadow"):
    return f'<PFD A="PFD1" C="{name}" D="1000">{content}</PFD>'


def as_double(text):
    """The value nearest to a decimal of up to 15 digits, as one division of whole numbers gives it."""
    whole, _, fraction = text.strip().partition(".")
    return int(whole + fraction) / 10 ** len(fraction)


def position_of(element):
    return [as_double(element.get("D")), as_double(element.get("C"))]


def positions_of(element):
    return [position_of(child) for child in element.findall("PNT")]


def doubled_size(ring):
    """Exact, above 0 when the ring runs counter-clockwise."""
    exact = [(Fraction(east), Fraction(north)) for east, north in ring]
    return sum(a[0] * b[1] - b[0] * a[1] for a, b in itertools.pairwise(exact))


class GeoJsonTest(TransferSetTest):
    def collection(self, *arguments, status=ALL_GOOD, talk=""):
        outcome = run(*arguments, "--geojson")
        self.expect(status, outcome, talk)
        self.assertTrue(outcome.data.isascii())

        def refuse(constant):
            self.fail(constant)

        collection = json.loads(outcome.data, parse_constant=refuse)
        self.assertEqual(["type", "features"], list(collection))
        self.assertEqual("FeatureCollection", collection["type"])
        for feature in collection["features"]:
            self.assertEqual(["type", "properties", "geometry"], list(feature))
            self.assertEqual("Feature", feature["type"])
            if feature["geometry"] is not None:
                self.check_geometry(**feature["geometry"])
        return collection["features"]

    def check_geometry(self, type, coordinates):
        def check(value, depth):
            if depth:
                self.assertTrue(value)
                for part in value:
                    check(part, depth - 1)
                return
            east, north = value
            self.assertTrue(-180 <= east <= 180 and -90 <= north <= 90, value)

        check(coordinates, DEPTH[type])
        if type == "LineString":
            self.assertGreaterEqual(len(coordinates), 2)
        for rings in {"Polygon": [coordinates], "MultiPolygon": coordinates}.get(type, []):
            for i, ring in enumerate(rings):
                self.assertGreaterEqual(len(ring), 4)
                self.assertEqual(ring[0], ring[-1])
                if i == 0:
                    self.assertGreaterEqual(doubled_size(ring), 0)
                else:
                    self.assertLessEqual(doubled_size(ring), 0)

    def fields(self, content, **attributes):
        return self.collection("fields", self.make_set(TASKDATA=task_data(field(content, **attributes))))

    def geometry(self, content):
        (feature,) = self.fields(content)
        return feature["geometry"]

    def rings(self, *rings):
        """The geometry of a boundary of these rings, as a list of polygons."""
        geometry = self.geometry(polygon(*rings))
        return [geometry["coordinates"]] if geometry["type"] == "Polygon" else geometry["coordinates"]


class Fields(GeoJsonTest):
    def test_of_the_example_set_are_what_the_documents_say(self):
        tree = ElementTree.parse(EXAMPLE_SETS / "complete" / "TASKDATA.XML")
        features = iter(self.collection("fields", EXAMPLE_SETS / "complete"))
        for element in tree.getroot().findall("PFD"):
            for child in element:
                expected = [(child, child)] if child.tag != "GGP" else [
                    (pattern, drawn) for pattern in child.findall("GPN") for drawn in pattern]
                for owner, drawn in expected:
                    feature = next(features)
                    properties, geometry = feature["properties"], feature["geometry"]
                    self.assertEqual(element.get("A"), properties["fieldId"])
                    self.assertEqual(element.get("C"), properties["fieldDesignator"])
                    self.assertEqual(owner.get("B"), properties["designator"])
                    if drawn.tag == "PNT":
                        self.assertEqual({"type": "Point", "coordinates": position_of(drawn)}, geometry)
                    elif drawn.tag == "LSG":
                        self.assertEqual({"type": "LineString", "coordinates": positions_of(drawn)}, geometry)
                    else:
                        self.assertEqual("Polygon", geometry["type"])
                        for ring, written in zip(drawn.findall("LSG"), geometry["coordinates"], strict=True):
                            self.assertCountEqual(positions_of(ring), written)
        self.assertEqual([], list(features))

    def test_boundary_has_the_fields_own_properties(self):
        feature = self.collection("fields", EXAMPLE_SETS / "complete")[0]
        self.assertEqual({
            "kind": "boundary", "fieldId": "PFD1", "fieldUuid": "06e82a01-2b5c-4cd1-a7ca-430e92ac3d42",
            "fieldDesignator": "Long Meadow", "type": "1", "typeName": "boundary", "id": "PLN1", "uuid": None,
            "designator": "Boundary", "colour": None, "area": 131300, "fieldCode": "F-01", "fieldArea": 131300,
            "fieldIdRef": None, "farmIdRef": "FRM1", "farmUuid": "d96e5adf-a2be-4e31-ac8b-e7d742840d2b",
            "farmDesignator": "Upper Farm", "growerIdRef": "CTR1", "growerUuid": "c963cfe0-afae-4a3b-b909-6a04e7d80068",
            "growerLastName": "Hill Estate", "cropTypeIdRef": "CTP1", "cropVarietyIdRef": "CVT1",
        }, feature["properties"])

    def test_of_a_farm_have_each_ring_exactly(self):
        with tempfile.TemporaryDirectory() as folder:
            directory = pathlib.Path(folder)
            transfer_set.make_farm(directory, seed=7, fields=9, points=40)
            features = self.collection("fields", directory)
            fields = ElementTree.parse(directory / "TASKDATA.XML").getroot().findall("PFD")
            self.assertEqual(9, len(features))
            for element, feature in zip(fields, features, strict=True):
                rings = [positions_of(ring) for ring in element.find("PLN")]
                self.assertEqual([40 + 1, 12 + 1], [len(ring) for ring in rings])
                self.assertEqual({"type": "Polygon", "coordinates": rings}, feature["geometry"])

    def test_of_generated_sets_are_valid(self):
        kinds = set()
        for seed in range(4):
            with self.subTest(seed), tempfile.TemporaryDirectory() as folder:
                directory = pathlib.Path(folder)
                transfer_set.make(directory, seed, 150_000)
                features = self.collection("fields", directory)
                kinds |= {feature["properties"]["kind"] for feature in features}
                document = ElementTree.parse(directory / "TASKDATA.XML").getroot()
                for task in {task.get("A") for task in document.findall("TSK")}:
                    last = [element for element in document.findall("TSK") if element.get("A") == task][-1]
                    self.assertEqual(len(last.findall("TZN/PLN")), len(self.collection("rx", directory, task)))
        self.assertEqual({"boundary", "polygon", "line", "point", "guidanceLine", "guidanceBoundary"}, kinds)

    def test_each_type_has_its_name(self):
        for tag, names in (
            ("PNT", ["flag", "other", "access", "storage", "obstacle", "guidance A", "guidance B", "centre",
                     "guidance point", "field reference", "home base"]),
            ("LSG", ["exterior ring", "interior ring", "tram line", "sampling route", "guidance pattern", "drainage",
                     "fence", "flag", "obstacle"]),
            ("PLN", ["boundary", "treatment zone", "water", "building", "road", "obstacle", "flag", "other", "main field",
                     "headland", "buffer zone", "windbreak"]),
        ):
            for code, name in enumerate(names, start=1):
                content = {"PNT": point(1, 2, str(code)), "LSG": line(str(code), (1, 2), (3, 4)),
                           "PLN": polygon(square(0, 1), type=str(code))}[tag]
                with self.subTest(tag=tag, code=code):
                    (feature,) = self.fields(content)
                    self.assertEqual((str(code), name), (feature["properties"]["type"], feature["properties"]["typeName"]))

    def test_kinds_tell_what_a_feature_is(self):
        group = (f'<GGP A="GGP1" B="Main">{polygon(square(0, 1), type="10")}'
                 f'<GPN A="GPN1" C="1">{line("5", (0, 0), (1, 1))}</GPN>'
                 f'<GPN A="GPN2" C="1">{polygon(square(0, 2))}</GPN></GGP>')
        features = self.fields(polygon(square(0, 1)) + polygon(square(0, 1), type="3") + line("7", (0, 0), (1, 1))
                               + point(1, 1, E="-5") + group)
        self.assertEqual(["boundary", "polygon", "line", "point", "guidanceBoundary", "guidanceLine", "guidanceBoundary"],
                         [feature["properties"]["kind"] for feature in features])
        self.assertEqual([None, "GPN2"], [features[i]["properties"]["patternId"] for i in (4, 6)])
        self.assertEqual(["Main"] * 3, [feature["properties"]["groupDesignator"] for feature in features[4:]])
        self.assertEqual(-5, features[3]["properties"]["altitude"])

    def test_guidance_lines_keep_their_points(self):
        line_to = line("5", (0, 0), (1, 1))
        pivot = f'<LSG A="5">{point(1, 1, "6")}{point(0, 0, "8")}</LSG>'
        for caption, pattern, geometry, expected in (
            ("an AB line", f'C="1">{line_to}', {"type": "LineString", "coordinates": [[0, 0], [1, 1]]}, {}),
            ("a point and heading", f'C="2" G="12.50">{line("5", (3, 4))}', {"type": "Point", "coordinates": [3, 4]},
             {"heading": 12.5}),
            ("a pivot in document order", f'C="4" H="250000" D="3">{pivot}',
             {"type": "MultiPoint", "coordinates": [[1, 1], [0, 0]]},
             {"radius": 250000, "options": "3", "pointTypes": ["guidance A", "centre"]}),
            ("a pivot's centre alone", f'C="4">{line("5", (3, 4))}', {"type": "Point", "coordinates": [3, 4]},
             {"radius": None}),
            ("a spiral", f'C="5">{line_to}', {"type": "LineString", "coordinates": [[0, 0], [1, 1]]},
             {"typeName": "spiral", "pointTypes": None}),
        ):
            with self.subTest(caption):
                (feature,) = self.fields(f'<GGP A="GGP1"><GPN A="GPN1" {pattern}</GPN></GGP>')
                self.assertEqual(geometry, feature["geometry"])
                self.assertEqual(expected, {key: feature["properties"][key] for key in expected})

    def test_of_external_files_are_there_and_failed_ones_are_told(self):
        directory = self.make_set(TASKDATA=task_data('<XFR A="PFD00001" B="1"/><XFR A="PFD00002" B="1"/>'),
                                  PFD00001=f"<XFC>{field(polygon(square(0, 1)))}</XFC>")
        (feature,) = self.collection("fields", directory, status=SOME_FAILED, talk="PFD00002:1: 1: Unable to open file\n")
        self.assertEqual("PFD1", feature["properties"]["fieldId"])

    def test_without_fields_there_is_an_empty_collection(self):
        self.assertEqual([], self.collection("fields", self.make_set(TASKDATA=task_data())))

    def test_hostile_text_stays_text(self):
        (feature,) = self.fields(point(1, 1), name='&quot;}&lt;/script&gt;&#27;[2J\\')
        self.assertEqual('"}</script>\x1b[2J\\', feature["properties"]["fieldDesignator"])


class Rings(GeoJsonTest):
    def test_are_wound_and_closed_whatever_way_they_were_drawn(self):
        counter_clockwise = [[0, 0], [9, 0], [9, 9], [0, 9], [0, 0]]
        hole = [[2, 2], [2, 3], [3, 3], [3, 2], [2, 2]]
        for outer, inner in itertools.product((1, -1), repeat=2):
            with self.subTest(outer=outer, inner=inner):
                ((exterior, interior),) = self.rings(square(0, 9, turn=outer), square(2, 3, "2", turn=inner))
                self.assertEqual(counter_clockwise, exterior)
                self.assertEqual(hole, interior)

    def test_open_ones_are_closed(self):
        self.assertEqual([[[[0, 0], [1, 0], [1, 1], [0, 0]]]], self.rings(line("1", (0, 0), (1, 0), (1, 1))))

    def test_small_fields_far_from_the_origin_keep_their_direction(self):
        ring = [("8.123456781", "51.987654321"), ("8.123456791", "51.987654321"), ("8.123456791", "51.987654331")]
        for turned in (ring, ring[::-1]):
            (((exterior),),) = self.rings(line("1", *turned))
            self.assertGreater(doubled_size(exterior), 0)

    def test_several_exterior_ones_make_a_multi_polygon_with_each_hole_in_its_own(self):
        rings = [square(0, 9), square(20, 29), square(22, 23, "2"), square(2, 3, "2")]
        for order in itertools.permutations(rings):
            with self.subTest(order):
                polygons = self.rings(*order)
                found = sorted((ring[0][0][0], len(ring), ring[1][0][0]) for ring in polygons)
                self.assertEqual([(0, 2, 2), (20, 2, 22)], found)

    def test_a_hole_goes_to_the_smallest_exterior_ring_around_it(self):
        inner, outer = sorted(self.rings(square(0, 89), square(10, 19), square(12, 13, "2")), key=len, reverse=True)
        self.assertEqual(([10, 10], 2), (inner[0][0], len(inner)))
        self.assertEqual(([0, 0], 1), (outer[0][0], len(outer)))

    def test_a_hole_that_sticks_out_stays_with_the_ring_that_holds_most_of_it(self):
        hole = line("2", (7, 7), (8, 7), ("8.5", "7.5"), ("9.5", "8"))
        left, right = square(0, 9), line("1", (9, 0), (90, 0), (90, 9), (9, 9))
        for order in itertools.permutations((left, right, hole)):
            with self.subTest(order):
                self.assertEqual([(0, 2), (9, 1)], sorted((rings[0][0][0], len(rings)) for rings in self.rings(*order)))

    def test_a_hole_whose_corners_lie_on_the_border_is_one(self):
        self.assertEqual([2], [len(rings) for rings in self.rings(square(0, 4), line("2", (2, 0), (4, 2), (2, 4), (0, 2)))])

    def test_a_hole_outside_takes_nothing_away(self):
        for caption, hole in (("beside", square(20, 21, "2")), ("around", square(-5, 50, "2")),
                              ("touching in a corner", square(9, 10, "2"))):
            with self.subTest(caption):
                self.assertEqual([1], [len(rings) for rings in self.rings(square(0, 9), hole)])

    def test_other_types_are_exterior_ones(self):
        for code in "3456789":
            self.assertEqual(1, len(self.rings(square(0, 9, code))))

    def test_across_the_date_line_are_turned_by_what_they_enclose(self):
        ring = [("179.9", "1"), ("-179.9", "1"), ("-179.9", "2"), ("179.9", "2")]
        for turned in (ring, ring[::-1]):
            document = task_data(field(polygon(line("1", *turned))))
            outcome = json.loads(run("fields", self.make_set(TASKDATA=document), "--geojson").data)
            (exterior,) = outcome["features"][0]["geometry"]["coordinates"]
            unrolled = [(east % 360, north) for east, north in exterior]
            self.assertGreater(doubled_size(unrolled), 0)

    def test_that_enclose_nothing_are_left_out(self):
        for caption, ring in (
            ("one point", line("1", (1, 1))),
            ("two points", line("1", (1, 1), (2, 2))),
            ("two points and back", line("1", (1, 1), (2, 2), (1, 1), (2, 2))),
            ("one point many times", line("1", *[(1, 1)] * 5)),
            ("a negative zero", line("1", ("0", "0"), ("-0", "0"), ("0.0", "-0.0"), ("1", "0"))),
        ):
            with self.subTest(caption, alone=True):
                self.assertIsNone(self.geometry(polygon(ring)))
            with self.subTest(caption, alone=False):
                hole = ring.replace('A="1"', 'A="2"', 1)
                self.assertEqual([1], [len(rings) for rings in self.rings(square(0, 9), ring, hole)])

    def test_of_no_position_are_refused_and_the_collection_is_valid(self):
        for content in ('<PLN A="1"><LSG A="1"/></PLN>', '<LSG A="7"/>', '<PLN A="1"/>'):
            outcome = run("fields", self.make_set(TASKDATA=task_data(field(content))), "--geojson")
            self.assertEqual((NO_RESULT, []), (outcome.status, json.loads(outcome.data)["features"]))

    def test_three_positions_in_a_row_make_a_closed_ring(self):
        ((ring,),) = self.rings(line("1", (0, 0), (1, 1), (2, 2)))
        self.assertEqual([[0, 0], [1, 1], [2, 2], [0, 0]], ring)

    def test_hole_without_exterior_ring_has_no_geometry(self):
        self.assertIsNone(self.geometry(polygon(square(0, 1, "2"))))

    def test_line_of_one_position_is_a_point(self):
        self.assertEqual({"type": "Point", "coordinates": [1, 2]}, self.geometry(line("7", (1, 2))))

    def test_numbers_keep_every_digit_a_double_has(self):
        for text, value in (("0.1", 0.1), ("-179.999999999999", -179.999999999999), ("+1.50", 1.5), ("007.25", 7.25),
                            ("0.000000001", 1e-9), ("180.0", 180.0), ("0.30000000000000004", 0.30000000000000004)):
            with self.subTest(text):
                self.assertEqual([value, 1], self.geometry(point(text, 1))["coordinates"])

    def test_many_holes_in_many_exterior_rings_are_not_all_compared(self):
        """Beyond a number of steps a hole goes to the exterior ring before it; till then, here, to the first of like ones."""
        exterior = line("1", *[(f"{i / 10}", 0) for i in range(60)], (3, 5))
        hole = line("2", *[(3, 1), ("3.1", 1), (3, "1.1")] * 6)
        polygons = self.rings(*[exterior] * 1000, *[hole] * 600)
        holes = [len(rings) - 1 for rings in polygons]
        self.assertEqual((1000, 600), (len(polygons), sum(holes)))
        self.assertEqual(600, holes[0] + holes[-1])
        self.assertTrue(all((holes[0], holes[-1])), holes)


class Prescriptions(GeoJsonTest):
    def rx(self, content, task="TSK1"):
        return self.collection("rx", self.make_set(TASKDATA=task_data(content)), task)

    def test_of_the_example_set_are_what_the_document_says(self):
        task = ElementTree.parse(EXAMPLE_SETS / "complete" / "TASKDATA.XML").getroot().find("TSK[@A='TSK1']")
        features = self.collection("rx", EXAMPLE_SETS / "complete", "TSK1")
        zones = [zone for zone in task.findall("TZN") if zone.find("PLN") is not None]
        self.assertEqual(2, len(zones))
        for zone, feature in zip(zones, features, strict=True):
            properties = feature["properties"]
            self.assertEqual((int(zone.get("A")), zone.get("B"), int(zone.get("C"))),
                             tuple(properties[key] for key in ("zoneCode", "zoneDesignator", "zoneColour")))
            variable, value = zone.find("PDV"), int(zone.find("PDV").get("B"))
            self.assertEqual(value, properties["value0001"])
            self.assertEqual([{
                "ddi": "0001", "value": value, "shownValue": value / 100, "unit": "l/ha", "productIdRef": "PDT1",
                "productDesignator": "Nitrogen solution", "deviceElementIdRef": "DET-2", "valuePresentationIdRef": "VPN1",
                "rxMap": "RXNITRO1.CSV", "rxColumn": "RATE_L_HA", "rxUnit": "l/ha",
                "rxWithoutConversionRate": float(variable.get("P917_rxwoconvrate")),
            }], properties["variables"])
            self.assertCountEqual(positions_of(zone.find("PLN/LSG")), feature["geometry"]["coordinates"][0])

    def test_each_polygon_of_a_zone_has_the_zones_values(self):
        features = self.rx(f'<TSK A="TSK1" G="1"><TZN A="254" B="Wet">{polygon(square(0, 1), type="2")}'
                           f'<PDV A="00aF" B="-2147483648"/>{polygon(square(2, 3), square(5, 6), type="2")}'
                           f'<PDV A="0006" B="7"><PDV A="0007" B="8"/></PDV><PDV A="0006" B="9"/></TZN></TSK>')
        self.assertEqual(["Polygon", "MultiPolygon"], [feature["geometry"]["type"] for feature in features])
        for feature in features:
            properties = feature["properties"]
            self.assertEqual([("00AF", -2147483648), ("0006", 7), ("0007", 8), ("0006", 9)],
                             [(variable["ddi"], variable["value"]) for variable in properties["variables"]])
            self.assertEqual((-2147483648, 7, 8), tuple(properties["value" + ddi] for ddi in ("00AF", "0006", "0007")))
            self.assertEqual((254, "Wet"), (properties["zoneCode"], properties["zoneDesignator"]))
            self.assertIsNone(properties["variables"][0]["productIdRef"])

    def test_the_last_task_of_an_identifier_counts(self):
        tasks = "".join(f'<TSK A="TSK1" G="1"><TZN A="{code}">{polygon(square(0, code), type="2")}</TZN></TSK>'
                        for code in (1, 2))
        self.assertEqual([2], [feature["properties"]["zoneCode"] for feature in self.rx(tasks)])

    def test_of_an_unknown_task_or_one_without_polygons_are_empty(self):
        self.assertEqual([], self.rx('<TSK A="TSK1" G="1"><TZN A="1"><PDV A="0001" B="1"/></TZN></TSK>'))
        outcome = run("rx", self.make_set(TASKDATA=task_data()), "TSK9", "--geojson")
        self.assertEqual([], json.loads(outcome.data)["features"])

    def test_polygon_that_encloses_nothing_has_no_geometry(self):
        (feature,) = self.rx(f'<TSK A="TSK1" G="1"><TZN A="1">{polygon(line("1", (1, 1)), type="2")}</TZN></TSK>')
        self.assertIsNone(feature["geometry"])

    def test_deeply_nested_values_are_read_or_refused(self):
        for depth in (1000, 200_000):
            nested = '<PDV A="0001" B="1">' * depth + "</PDV>" * depth
            directory = self.make_set(TASKDATA=task_data(
                f'<TSK A="TSK1" G="1"><TZN A="1">{polygon(square(0, 1), type="2")}{nested}</TZN></TSK>'))
            outcome = run("rx", directory, "TSK1", "--geojson")
            self.assertGreaterEqual(outcome.status, 0)
            self.assertEqual("FeatureCollection", json.loads(outcome.data)["type"])

    def test_many_polygons_with_many_values_do_not_give_their_product(self):
        values = '<PDV A="0001" B="1"/>' * 2000
        features = self.rx(f'<TSK A="TSK1" G="1"><TZN A="1">{polygon(square(0, 1), type="2") * 2000}{values}</TZN></TSK>')
        self.assertEqual(2000, len(features))
        self.assertEqual(2000, len(features[0]["properties"]["variables"]))
        self.assertNotIn("variables", features[-1]["properties"])


if __name__ == "__main__":
    unittest.main()
