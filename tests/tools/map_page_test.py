"""The map page in a browser: what it draws and lists, how it is worked, and that it fetches nothing."""
import base64
import json
import pathlib
import sys
import tempfile
import time
import unittest

from browser import Browser
from tool import ALL_GOOD, EXAMPLE_SETS, ROOT, SOME_FAILED, TransferSetTest, run, task_data

sys.path.insert(0, str(ROOT / "tests" / "generator"))
import transfer_set  # noqa: E402

COMPLETE = EXAMPLE_SETS / "complete"
DESK, PHONE = (1280, 800, False), (360, 740, True)
EXTENT = "return [document.documentElement.scrollWidth, innerWidth]"


def square(low, high, type="1", ring="1"):
    corners = [(low, low), (high, low), (high, high), (low, high), (low, low)]
    points = "".join(f'<PNT A="2" C="{52 + y / 1000}" D="{9 + x / 1000}"/>' for x, y in corners)
    return f'<PLN A="{type}"><LSG A="{ring}">{points}</LSG></PLN>'


class MapPageTest(TransferSetTest):
    @classmethod
    def setUpClass(cls):
        cls.browser = Browser()
        cls.addClassCleanup(cls.browser.close)

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.file = pathlib.Path(folder.name) / "map.html"

    def show(self, directory, size=DESK, status=ALL_GOOD):
        outcome = run("map", directory, "-o", self.file)
        self.assertEqual(status, outcome.status, outcome.talk)
        self.browser.resize(*size)
        self.browser.complaints()  # drops those of the page before
        self.browser.open(self.file.as_uri())
        self.addCleanup(self.expect_peace)

    def expect_peace(self):
        """Nothing was fetched, refused or thrown."""
        self.assertEqual([], self.browser.complaints())
        self.assertEqual([], self.browser.run("return performance.getEntriesByType('resource').map((each) => each.name)"))

    def show_content(self, content, **options):
        self.show(self.make_set(TASKDATA=task_data(content)), **options)

    def settle(self):
        """Waits until what was asked for is drawn."""
        self.browser.devtools("Runtime.evaluate", awaitPromise=True, expression=(
            "new Promise((done) => requestAnimationFrame(() => requestAnimationFrame(() => done())))"))

    def drawn(self):
        self.settle()
        return json.loads(self.browser.run("return document.getElementById('canvas').dataset.drawn"))

    def text(self, selector):
        return self.browser.run("return [...document.querySelectorAll(arguments[0])].map((each) => each.innerText)", selector)

    def is_visible(self, selector):
        return self.browser.run("return document.querySelector(arguments[0]).checkVisibility()", selector)

    def click(self, selector):
        self.browser.click(selector)
        self.settle()

    def pixels(self):
        """How often each colour occurs on the canvas."""
        self.settle()
        return self.browser.run("""
            const canvas = document.getElementById("canvas");
            const {data} = canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height);
            const counts = {};
            for (let i = 0; i < data.length; i += 4) {
              if (data[i + 3] === 0) continue;
              const key = `${data[i]},${data[i + 1]},${data[i + 2]}`;
              counts[key] = (counts[key] || 0) + 1;
            }
            return counts;""")

    def pixels_at(self, *places):
        """The colours at places given as shares of width and height."""
        return self.browser.run("""
            const canvas = document.getElementById("canvas");
            const {data} = canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height);
            return arguments[0].map(([x, y]) => {
              const i = 4 * (Math.round(y * canvas.height) * canvas.width + Math.round(x * canvas.width));
              return [...data.slice(i, i + 4)];
            });""", places)


class Drawing(MapPageTest):
    def test_shows_all_kinds_of_geometry(self):
        self.show(COMPLETE)
        self.assertEqual({"boundaries": 2, "holes": 1, "polygons": 0, "zones": 0, "guidance": 1, "lines": 1, "points": 2},
                         self.drawn())
        pixels = self.pixels()
        self.assertGreater(pixels["226,236,214"], 10_000)  # the fields
        for colour in ("44,81,52", "122,47,160", "154,90,0"):  # boundaries, guidance, lines
            self.assertGreater(pixels.get(colour, 0), 20, colour)

    def test_is_to_scale(self):
        """A field of 6 seconds of arc north and east at 60 degrees is half as wide as it is high."""
        points = "".join(f'<PNT A="2" C="{60 + y / 600}" D="{9 + x / 600}"/>' for x, y in ((0, 0), (1, 0), (1, 1), (0, 1), (0, 0)))
        self.show_content(f'<PFD A="PFD1" C="F" D="1"><PLN A="1"><LSG A="1">{points}</LSG></PLN></PFD>')
        self.settle()
        width, height, metres = self.browser.run("""
            const canvas = document.getElementById("canvas");
            const {data, width, height} = canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height);
            let [left, right, top, bottom] = [width, 0, height, 0];
            for (let y = 0; y < height; ++y) for (let x = 0; x < width; ++x) {
              const i = 4 * (y * width + x);
              if (data[i] !== 226 || data[i + 1] !== 236 || data[i + 2] !== 214) continue;
              [left, right, top, bottom] = [Math.min(left, x), Math.max(right, x), Math.min(top, y), Math.max(bottom, y)];
            }
            const bar = document.getElementById("scale-bar").getBoundingClientRect().width;
            return [right - left, bottom - top, parseFloat(document.getElementById("scale-text").textContent) / bar];""")
        self.assertAlmostEqual(0.5, width / height, delta=0.02)
        self.assertAlmostEqual(185.7, height * metres, delta=4)  # metres in 6 seconds of latitude

    def test_has_north_up(self):
        self.show_content(f'<PFD A="PFD1" C="South" D="1">{square(0, 1)}</PFD><PFD A="PFD2" C="North" D="1">{square(9, 10)}</PFD>')
        names = []
        for name in (1, 2):
            self.click(f"section li:nth-child({name}) button")
            names.append(self.browser.run("return document.querySelector('[aria-current=true]').innerText.split('\\n')[0]"))
            self.assertEqual(1, self.drawn()["boundaries"])
            self.browser.run("document.getElementById('canvas').focus()")
            for key in ("0", "\ue013" if name == 2 else "\ue015"):  # everything, then up or down
                self.browser.type("#canvas", key * (1 if key == "0" else 8))
            self.assertEqual(1, self.drawn()["boundaries"], "the field lies that way")
            self.browser.type("#canvas", "0")
        self.assertEqual(["South", "North"], names)

    def test_leaves_holes_open(self):
        outer, hole = square(0, 9)[:-6], square(3, 6, ring="2")[len('<PLN A="1">'):]
        self.show_content(f'<PFD A="PFD1" C="" D="1">{outer}{hole}</PFD>')
        self.settle()
        self.assertEqual([[0, 0, 0, 0], [226, 236, 214, 255]], self.pixels_at((0.5, 0.5), (0.5, 0.8)))

    def test_shows_a_pivots_whole_circle(self):
        """Its bounds are those of the circle, whether the radius is given or a point on the circle."""
        centre, mark = '<PNT A="8" C="52" D="9"/>', '<PNT A="6" C="52" D="9.002"/>'
        for caption, radius, points in (("a radius", 'H="137000"', centre), ("a point on it", "", centre + mark)):
            with self.subTest(caption):
                self.show_content('<PFD A="PFD1" C="" D="1"><GGP A="GGP1">'
                                  f'<GPN A="GPN1" C="4" {radius}><LSG A="5">{points}</LSG></GPN></GGP></PFD>')
                self.settle()
                left, right, top, bottom = self.browser.run("""
                    const canvas = document.getElementById("canvas");
                    const {data, width, height} = canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height);
                    let [left, right, top, bottom] = [width, 0, height, 0];
                    for (let y = 0; y < height; ++y) for (let x = 0; x < width; ++x) {
                      const i = 4 * (y * width + x);
                      if (data[i] !== 122 || data[i + 1] !== 47 || data[i + 2] !== 160) continue;
                      [left, right, top, bottom] = [Math.min(left, x), Math.max(right, x), Math.min(top, y), Math.max(bottom, y)];
                    }
                    return [left, width - right, top, height - bottom];""")
                self.assertAlmostEqual(left, right, delta=3)
                self.assertAlmostEqual(top, bottom, delta=3)
                self.assertGreater(min(left, top), 20)

    def test_layers_can_be_switched_off(self):
        self.show(COMPLETE)
        self.assertEqual(["Guidance", "Lines", "Points", "Names"], [text.strip() for text in self.text("#layers label")])
        for number, kind in enumerate(("guidance", "lines", "points"), start=1):
            self.assertGreater(self.drawn()[kind], 0)
            self.click(f"#layers label:nth-child({number}) input")
            self.assertEqual(0, self.drawn()[kind])

    def test_follows_the_dark_scheme(self):
        scheme = {"name": "prefers-color-scheme", "value": "dark"}
        self.show(COMPLETE)
        self.addCleanup(self.browser.devtools, "Emulation.setEmulatedMedia", features=[])
        self.browser.devtools("Emulation.setEmulatedMedia", features=[scheme])
        self.assertGreater(self.pixels().get("36,53,42", 0), 10_000)


class Prescriptions(MapPageTest):
    def test_task_shows_its_zones_and_their_legend(self):
        self.show(COMPLETE)
        self.assertFalse(self.is_visible("#legend"))
        self.click("#tasks li:nth-child(1) button")
        self.assertEqual(2, self.drawn()["zones"])
        self.assertEqual(["Second dressing"], self.text("#legend-title"))
        self.assertEqual(["Nitrogen solution \u00b7 l/ha \u00b7 DDI 0001 \u00b7 DET-2"], self.text("#variable option"))
        self.assertEqual([["220 l/ha", "6.86 ha"], ["180 l/ha", "6.86 ha"], ["0 l/ha", "not drawn"]],
                         [line.split("\t")[-2:] for line in self.text("#legend-values li")])
        self.assertEqual(["1 zone has no outline."], self.text("#legend-note"))
        swatches = self.browser.run("return [...document.querySelectorAll('#legend-values rect')].map((each) => each.getAttribute('fill'))")
        pixels = self.pixels()
        for colour in swatches[:2]:
            self.assertGreater(pixels.get(colour.removeprefix("rgb(").removesuffix(")"), 0), 10_000, colour)

    def test_task_chosen_once_more_is_put_away(self):
        self.show(COMPLETE)
        for zones, pressed in ((2, "true"), (0, "false")):
            self.click("#tasks li:nth-child(1) button")
            self.assertEqual(zones, self.drawn()["zones"])
            self.assertEqual(pressed, self.browser.run("return document.querySelector('#tasks button').ariaPressed"))
        self.assertFalse(self.is_visible("#legend"))

    def test_of_several_values_one_is_chosen(self):
        zones = "".join(f'<TZN A="{i}">{square(i, i + 1, "2")}<PDV A="0001" B="{i}"/>'
                        + (f'<PDV A="0006" B="{10 * i}"/>' if i else "") + "</TZN>" for i in range(3))
        self.show_content(f'<TSK A="TSK1" B="T" G="1">{zones}</TSK>')
        self.click("#tasks button")
        values = lambda: [line.split("\t")[-2] for line in self.text("#legend-values li")]  # noqa: E731
        self.assertEqual(["2", "1", "0"], values())
        self.browser.run("const list = document.getElementById('variable'); list.value = '1'; list.dispatchEvent(new Event('change'))")
        self.assertEqual(["20", "10", "no value"], values())
        self.assertEqual(3, self.drawn()["zones"])

    def test_legend_holds_long_units_and_names(self):
        self.show_content(f'<VPN A="VPN1" B="0" C="1" D="7" E="{"W" * 32}"/><TSK A="TSK1" B="{"W" * 32}" G="1"><TZN A="1">'
                          f'{square(0, 1, "2")}<PDV A="0001" B="2147483647" E="VPN1"/></TZN></TSK>')
        self.click("#tasks button")
        inside, whole = self.browser.run("const {clientWidth, scrollWidth} = document.getElementById('legend');"
                                         "return [clientWidth, scrollWidth]")
        self.assertEqual(inside, whole)

    def test_many_values_are_put_into_classes_without_a_gap(self):
        zones = "".join(f'<TZN A="{i}">{square(i, i + 1, "2")}<PDV A="0001" B="{100 + i * i}"/></TZN>' for i in range(30))
        self.show_content(f'<TSK A="TSK1" B="T" G="1">{zones}</TSK>')
        self.click("#tasks button")
        rows = [line.split("\t") for line in self.text("#legend-values li")]
        self.assertEqual(7, len(rows))
        self.assertTrue(rows[-1][-2].startswith("100 \u2013 ") and rows[0][-2].endswith(" \u2013 941"), rows)
        sizes = self.browser.run("return [...document.querySelectorAll('#legend-values li :last-child')].map((each) => parseFloat(each.innerText))")
        self.assertAlmostEqual(30 * 0.76, sum(size for size in sizes if size), delta=0.5)

    def test_lighter_is_less_and_no_two_classes_are_alike(self):
        zones = "".join(f'<TZN A="{i}">{square(i, i + 1, "2")}<PDV A="0001" B="{i}"/></TZN>' for i in range(7))
        self.show_content(f'<TSK A="TSK1" B="T" G="1">{zones}</TSK>')
        self.click("#tasks button")
        fills = self.browser.run("return [...document.querySelectorAll('#legend-values rect')].map((each) => each.getAttribute('fill').match(/\\d+/g).map(Number))")

        def luminance(colour):
            linear = [(c / 255 / 12.92) if c <= 10 else ((c / 255 + 0.055) / 1.055) ** 2.4 for c in colour]
            return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]

        lights = [luminance(fill) for fill in fills]  # the highest value comes first
        self.assertEqual(7, len(lights))
        for darker, lighter in zip(lights, lights[1:]):
            self.assertGreater((lighter + 0.05) / (darker + 0.05), 1.1)

    def test_task_without_zones_says_so(self):
        self.show_content('<TSK A="TSK1" B="T" G="4"><GRD A="1" B="1" C="0.1" D="0.1" E="1" F="1" G="GRD00000" I="1" J="1"/></TSK>')
        self.click("#tasks button")
        self.assertEqual(["This task has no treatment zones. Its grid is in a file of its own and not drawn."], self.text("#legend-note"))


class Lists(MapPageTest):
    def test_name_what_the_set_holds(self):
        self.show(COMPLETE)
        self.assertEqual(["complete"], self.text("h1"))
        self.assertEqual(["2 fields, 17.70 ha \u00b7 2 tasks \u00b7 3 products"], self.text("#summary"))
        self.assertEqual(["Hill Estate \u203a Upper Farm", "Lake Cooperative \u203a Shore Farm"], self.text("#fields h3"))
        self.assertEqual(["Long Meadow", "Shore Field"], self.text("#fields .name"))
        self.assertEqual(["Second dressing", "First dressing"], self.text("#tasks .name"))
        self.click("#products summary")
        self.assertEqual(["Nitrogen solution", "Sulphur solution", "Spring mix"], self.text("#products .name"))

    def test_field_is_shown_alone_when_chosen(self):
        self.show(COMPLETE)
        self.click("#fields section:nth-child(2) button")
        self.assertEqual(1, self.drawn()["boundaries"])
        self.click("#zoom-all")
        self.assertEqual(2, self.drawn()["boundaries"])

    def test_are_worked_by_keyboard(self):
        self.show(COMPLETE)
        order = []
        for _ in range(12):
            self.browser.act({"type": "key", "id": "keys", "actions": [{"type": "keyDown", "value": "\ue004"},
                                                                        {"type": "keyUp", "value": "\ue004"}]})
            order.append(self.browser.run("const it = document.activeElement; return it.id || it.innerText.split('\\n')[0]"))
        self.assertEqual(["canvas", "zoom-in", "zoom-out", "zoom-all"], order[:4])
        self.assertEqual(["Long Meadow", "Shore Field"], order[-4:-2] if "First dressing" in order[-2:] else order[-3:-1])
        self.browser.run("document.querySelector('#tasks button').focus()")
        self.browser.act({"type": "key", "id": "keys", "actions": [{"type": "keyDown", "value": " "}, {"type": "keyUp", "value": " "}]})
        self.assertEqual(2, self.drawn()["zones"])

    def test_field_is_found_by_its_name(self):
        self.show_content("".join(f'<PFD A="PFD{i}" C="Field {i}" D="1"/>' for i in range(1, 15)))
        self.browser.type("#field-filter", "FIELD 1")
        self.assertEqual([f"Field {i}" for i in (1, 10, 11, 12, 13, 14)],
                         self.browser.run("return [...document.querySelectorAll('#fields .name')].filter((each) => each.offsetParent).map((each) => each.innerText)"))

    def test_empty_ones_say_so(self):
        self.show_content("")
        self.click("#products summary")
        self.assertEqual(["This set holds no fields.", "This set holds no tasks.", "This set holds no products."],
                         self.text(".items p"))
        self.assertEqual(["This set holds no fields."], self.text("#empty"))
        self.assertEqual(["no fields \u00b7 no tasks \u00b7 no products"], self.text("#summary"))

    def test_failed_documents_are_named(self):
        self.show(EXAMPLE_SETS / "broken-external", status=SOME_FAILED)
        self.assertEqual(["1 document of 3 could not be read. What it holds is missing here."], self.text("#failures-title"))
        self.assertEqual(["FRM00001, line 4: Bad end of element (XFC)"], self.text("#failures-list li"))

    def test_very_many_failed_documents_do_not_stop_the_page(self):
        missing = '<XFR A="CTR00001" B="1"/>' * 150_000
        self.show_content(f'<PFD A="PFD1" C="F" D="1">{square(0, 1)}</PFD>{missing}', status=SOME_FAILED)
        self.assertEqual(1, self.drawn()["boundaries"])
        self.assertEqual(150_000, self.browser.run("return document.querySelectorAll('#failures-list li').length"))

    def test_whole_set_has_no_warning(self):
        self.show(COMPLETE)
        self.assertFalse(self.is_visible("#failures"))


class Moving(MapPageTest):
    def mouse(self, *actions, type="mouse", name="mouse"):
        return {"type": "pointer", "id": name, "parameters": {"pointerType": type}, "actions": list(actions)}

    def scale(self):
        self.settle()
        return self.browser.run("return parseFloat(document.getElementById('scale-bar').style.width)"), self.text("#scale-text")[0]

    def metres_for_a_pixel(self):
        width, text = self.scale()
        return float(text.split()[0].replace(",", "")) * {"cm": 0.01, "m": 1, "km": 1000}[text.split()[1]] / width

    def test_wheel_and_buttons_zoom(self):
        self.show(COMPLETE)
        before = self.metres_for_a_pixel()
        self.browser.act({"type": "wheel", "id": "wheel", "actions": [
            {"type": "scroll", "x": 400, "y": 400, "deltaX": 0, "deltaY": -200, "duration": 0}]})
        closer = self.metres_for_a_pixel()
        self.assertLess(closer, before * 0.8)
        self.click("#zoom-out")
        self.assertAlmostEqual(closer * 1.6, self.metres_for_a_pixel(), delta=closer * 0.02)
        self.click("#zoom-all")
        self.assertAlmostEqual(before, self.metres_for_a_pixel(), delta=before * 0.01)

    def test_dragging_moves_the_map(self):
        self.show(COMPLETE)
        self.browser.act(self.mouse({"type": "pointerMove", "x": 460, "y": 400}, {"type": "pointerDown", "button": 0},
                                    {"type": "pointerMove", "x": 460, "y": 730, "duration": 20},
                                    {"type": "pointerUp", "button": 0}))
        self.assertEqual(1, self.drawn()["boundaries"])  # the southern one is out of sight

    def test_two_fingers_zoom(self):
        self.show(COMPLETE, size=PHONE)
        before = self.metres_for_a_pixel()
        fingers = [self.mouse({"type": "pointerMove", "x": 180 + 20 * side, "y": 250}, {"type": "pointerDown", "button": 0},
                              {"type": "pointerMove", "x": 180 + 80 * side, "y": 250, "duration": 50},
                              {"type": "pointerUp", "button": 0}, type="touch", name=f"finger {side}") for side in (-1, 1)]
        self.browser.act(*fingers)
        self.assertAlmostEqual(before / 4, self.metres_for_a_pixel(), delta=before * 0.05)

    def test_a_click_chooses_the_field_there(self):
        self.show(COMPLETE)
        for y, name in ((600, "Long Meadow"), (250, "Shore Field")):
            self.browser.act(self.mouse({"type": "pointerMove", "x": 360, "y": y}, {"type": "pointerDown", "button": 0},
                                        {"type": "pointerUp", "button": 0}))
            self.assertEqual([name], self.text("[aria-current=true] .name"))


class Anywhere(MapPageTest):
    def test_fits_a_narrow_phone(self):
        hostile = "W" * 32
        content = (f'<CTR A="CTR1" B="{hostile}"/><PFD A="PFD1" C="{hostile}" D="4294967294" E="CTR1">{square(0, 1)}</PFD>'
                   f'<PDT A="PDT1" B="{hostile}"/><TSK A="TSK1" B="{hostile}" G="1" E="PFD1"><TZN A="1">{square(0, 1, "2")}'
                   f'<PDV A="0001" B="2147483647" C="PDT1" D="DET-2147483647"/></TZN></TSK>')
        for caption, directory, status in (("example", COMPLETE, ALL_GOOD), ("failed", EXAMPLE_SETS / "broken-external", SOME_FAILED),
                                           ("wide names", self.make_set(TASKDATA=task_data(content)), ALL_GOOD)):
            with self.subTest(caption):
                self.show(directory, size=PHONE, status=status)
                self.assertEqual([360, 360], self.browser.run(EXTENT))
                self.browser.run("for (const list of document.querySelectorAll('details')) list.open = true;"
                                 "document.querySelector('#tasks button').click()")
                self.settle()
                self.assertEqual([360, 360], self.browser.run(EXTENT))
                stage, lists = self.browser.run("return ['stage', 'lists'].map((id) => document.getElementById(id).getBoundingClientRect().toJSON())")
                self.assertLessEqual(stage["bottom"], lists["top"])
                self.assertEqual(360, stage["width"])

    def test_hostile_text_is_shown_as_text(self):
        content = "".join(f'<PFD A="PFD{i}" C="{text}" D="1">{square(i, i + 1)}</PFD>' for i, text in (
            (1, "&lt;/script&gt;&lt;img src=//x.y"), (2, "&lt;img src=x onerror=alert(1)&gt;"), (3, "&lt;!--&amp;lt;b&gt;")))
        self.show_content(content + '<TSK A="TSK1" B="&lt;style&gt;*{color:red}" G="1"/><CTR A="CTR1" B="&lt;script&gt;x()"/>')
        self.assertEqual(["</script><img src=//x.y", "<img src=x onerror=alert(1)>", "<!--&lt;b>", "<script>x()"],
                         self.text("#fields .name"))
        self.click("#tasks button")
        self.assertEqual(["<style>*{color:red}"], self.text("#legend-title"))
        self.assertEqual([0, 1, 2], self.browser.run("return ['img', 'style', 'script'].map((tag) => document.querySelectorAll(tag).length)"))

    def test_odd_geometry_draws_without_an_error(self):
        point = '<PNT A="8" C="10" D="10"/>'
        pole = '<PNT A="5" B="P" C="90" D="180"/><PNT A="5" C="-90" D="-180"/>'
        for caption, content in (
            ("a lone point", point), ("the poles", pole), ("a ring of one point", f'<PLN A="1"><LSG A="1">{point}</LSG></PLN>'),
            ("a line of one point", f'<LSG A="7">{point}</LSG>'),
            ("a pivot without radius", f'<GGP A="GGP1"><GPN A="GPN1" C="4"><LSG A="5">{point}</LSG></GPN></GGP>'),
            ("a huge pivot", f'<GGP A="GGP1"><GPN A="GPN1" C="4" H="4294967294"><LSG A="5">{point}</LSG></GPN></GGP>'),
            ("a heading", f'<GGP A="GGP1"><GPN A="GPN1" C="2" G="90"><LSG A="5">{point}</LSG></GPN></GGP>'),
        ):
            with self.subTest(caption):
                self.show_content(f'<PFD A="PFD1" C="F" D="1">{content}</PFD>')
                self.click("#fields button")
                self.assertEqual([], self.browser.complaints())
                self.drawn()

    def test_policy_stops_what_is_put_in(self):
        """The page's policy is in force: neither a style nor a script that is not its own, nor any request."""
        self.show(COMPLETE)
        self.browser.run("""
            for (const [tag, text] of [["script", "window.intruder = 1"], ["style", "h1 { display: none }"]]) {
              document.head.append(Object.assign(document.createElement(tag), {textContent: text}));
            }""")
        self.assertIsNone(self.browser.run("return window.intruder"))
        self.assertEqual(["complete"], self.text("h1"))
        refused = self.browser.run("return fetch('data:,x').then(() => 'fetched', () => 'refused')")
        self.assertEqual("refused", refused)
        self.assertGreaterEqual(len(self.browser.complaints()), 3)

    def test_can_be_printed(self):
        self.show(COMPLETE)
        self.click("#tasks button")
        printed = base64.b64decode(self.browser.devtools("Page.printToPDF", printBackground=True)["data"])
        self.assertTrue(printed.startswith(b"%PDF-"))
        self.assertEqual(2, self.drawn()["zones"])

    def test_large_farm_opens_and_redraws(self):
        with tempfile.TemporaryDirectory() as folder:
            directory = pathlib.Path(folder)
            transfer_set.make_farm(directory, seed=1, fields=500, points=500)
            started = time.monotonic()
            self.show(directory)
            self.assertEqual((500, 500), tuple(self.drawn()[key] for key in ("boundaries", "holes")))
            opened = time.monotonic()
            self.click("#tasks button")
            self.assertEqual(100, self.drawn()["zones"])
            steps = 20
            redraws = "return Number(document.getElementById('canvas').dataset.redraws)"
            before, moved = self.browser.run(redraws), time.monotonic()
            for step in range(steps):
                self.browser.run("document.getElementById(arguments[0]).click()", "zoom-in" if step % 2 else "zoom-out")
                self.settle()
            done = time.monotonic()
            self.assertEqual(steps, self.browser.run(redraws) - before)
            print(f"500 fields of 500 points: page of {self.file.stat().st_size / 1e6:.1f} MB, written and opened in "
                  f"{opened - started:.2f} s, {(done - moved) / steps * 1000:.0f} ms for each redraw", file=sys.stderr)


if __name__ == "__main__":
    unittest.main()
