
// Draws a transfer set's fields and one task's treatment zones on a canvas, and lists what the set holds.
// All text of the set reaches the page by textContent or fillText, never as markup. Nothing is fetched.
"use strict";
(() => {

const byId = (id) => document.getElementById(id);
const data = JSON.parse(byId("data").textContent);

// An element with attributes and children: elements, strings, which become text, or arrays of them.
function make(tag, attributes, ...children) {
  const element = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes || {})) {
    if (value !== null && value !== undefined) element.setAttribute(name, value);
  }
  for (const child of children.flat()) if (child !== null) element.append(child);
  return element;
}
const named = (text, otherwise) => make("bdi", { class: "name" }, text || otherwise || "(no name)");
const counted = (count, one, many) => `${count.toLocaleString("en")} ${count === 1 ? one : many}`;
const hectares = (squareMetres) => (squareMetres / 10000).toLocaleString("en",
  { minimumFractionDigits: 2, maximumFractionDigits: 2 }) + " ha";

// ---- Geometry: from steps in the data to metres east and south of the set's centre ----

// Paths come as steps in 1e-8 degrees, east and north in turn; the first one starts at the set's origin.
function decode(steps) {
  const path = new Float64Array(steps.length);
  let east = 0, north = 0;
  for (let i = 0; i < steps.length; i += 2) {
    path[i] = (east += steps[i]) / 1e8;
    path[i + 1] = (north += steps[i + 1]) / 1e8;
  }
  return path;
}

const emptyBox = () => ({ left: Infinity, top: Infinity, right: -Infinity, bottom: -Infinity });
const isEmpty = (box) => !(box.left <= box.right);
function addPath(box, path) {
  for (let i = 0; i < path.length; i += 2) {
    if (path[i] < box.left) box.left = path[i];
    if (path[i] > box.right) box.right = path[i];
    if (path[i + 1] < box.top) box.top = path[i + 1];
    if (path[i + 1] > box.bottom) box.bottom = path[i + 1];
  }
}
function addBox(box, other) {
  box.left = Math.min(box.left, other.left);
  box.top = Math.min(box.top, other.top);
  box.right = Math.max(box.right, other.right);
  box.bottom = Math.max(box.bottom, other.bottom);
}

const paths = [];
function pathOf(steps) {
  const path = decode(steps);
  paths.push(path);
  return path;
}

// A shape holds paths that are drawn together, and its bounds once they are in metres.
const shapeOf = (source, pathLists) => ({ ...source, paths: pathLists.map(pathOf), box: emptyBox() });
const fields = data.fields.map((field) => ({
  ...field,
  areas: field.areas.map((area) => shapeOf(area, area.rings)),
  lines: field.lines.map((line) => shapeOf(line, [line.path])),
  points: field.points.map((point) => shapeOf(point, [point.path])),
  guidance: field.guidance.map((line) => shapeOf(line, [line.path])),
  box: emptyBox(),
}));
const tasks = data.tasks.map((task) => ({
  ...task,
  zones: task.zones.map((zone) => ({ ...zone, areas: zone.areas.map((rings) => shapeOf({}, rings)) })),
  box: emptyBox(),
}));

// Local equirectangular projection about the middle of all positions, with the ellipsoid's length of a degree.
function project() {
  const bounds = emptyBox();
  for (const path of paths) addPath(bounds, path);
  if (isEmpty(bounds)) return;
  const east = (bounds.left + bounds.right) / 2, north = (bounds.top + bounds.bottom) / 2;
  const latitude = (data.origin[1] + north) * Math.PI / 180;
  const perNorth = 111132.954 - 559.822 * Math.cos(2 * latitude) + 1.175 * Math.cos(4 * latitude);
  const perEast = Math.max(
    111412.84 * Math.cos(latitude) - 93.5 * Math.cos(3 * latitude) + 0.118 * Math.cos(5 * latitude), 1);
  for (const path of paths) {
    for (let i = 0; i < path.length; i += 2) {
      path[i] = (path[i] - east) * perEast;
      path[i + 1] = (north - path[i + 1]) * perNorth;
    }
  }
}

// In metres. A pivot has its centre first; where its radius is not given, the next point lies on its circle.
function pivotRadius({ radius, paths: [path] }) {
  if (radius) return radius / 1000;
  return path.length > 2 ? Math.hypot(path[2] - path[0], path[3] - path[1]) : 0;
}

// A pivot's circle about its centre belongs to its bounds.
function measure(shape) {
  for (const path of shape.paths) addPath(shape.box, path);
  if (shape.isPivot) {
    const [x, y, r] = [shape.paths[0][0], shape.paths[0][1], pivotRadius(shape)];
    addBox(shape.box, { left: x - r, top: y - r, right: x + r, bottom: y + r });
  }
  return shape.box;
}

project();
const everything = emptyBox();
for (const field of fields) {
  for (const list of [field.areas, field.lines, field.points, field.guidance]) {
    for (const shape of list) addBox(field.box, measure(shape));
  }
  addBox(everything, field.box);
}
for (const task of tasks) {
  for (const zone of task.zones) {
    for (const area of zone.areas) addBox(task.box, measure(area));
  }
  addBox(everything, task.box);
}

function sizeOf(rings) {  // in square metres; holes run the other way round
  let doubled = 0;
  for (const path of rings) {
    for (let i = 2; i < path.length; i += 2) {
      doubled += (path[i - 2] - path[0]) * (path[i + 1] - path[1]) - (path[i] - path[0]) * (path[i - 1] - path[1]);
    }
  }
  return Math.abs(doubled) / 2;
}

function holdsPoint(rings, x, y) {
  let inside = false;
  for (const path of rings) {
    for (let i = 2; i < path.length; i += 2) {
      const [x1, y1, x2, y2] = [path[i - 2], path[i - 1], path[i], path[i + 1]];
      if ((y1 > y) !== (y2 > y) && x < x1 + (y - y1) / (y2 - y1) * (x2 - x1)) inside = !inside;
    }
  }
  return inside;
}

// ---- Values and their colours ----

// From light to dark, by lightness alone, so that they keep their order for every eye and in grey print.
const ramp = [[253, 240, 166], [169, 219, 181], [79, 179, 191], [43, 121, 181], [31, 47, 122]];
const mostSwatches = 7;

function rampColour(share) {
  const place = Math.min(Math.max(share, 0), 1) * (ramp.length - 1);
  const index = Math.min(Math.floor(place), ramp.length - 2);
  const mixed = ramp[index].map((from, i) => Math.round(from + (ramp[index + 1][i] - from) * (place - index)));
  return { css: `rgb(${mixed.join(",")})`, isDark: 0.3 * mixed[0] + 0.59 * mixed[1] + 0.11 * mixed[2] < 120 };
}

function shownValue(variable, value) {
  if (variable.scale === undefined) return value.toLocaleString("en");
  return ((value + variable.offset) * variable.scale).toLocaleString("en",
    { minimumFractionDigits: variable.decimals, maximumFractionDigits: variable.decimals });
}

function variableTitle(variable) {
  const unit = variable.scale === undefined ? "raw values" : variable.unit;
  const parts = [variable.product, unit, "DDI " + variable.ddi, variable.element].filter(Boolean);
  return parts.join(" \u00b7 ");
}

// The rows of the legend for one variable: each with a colour, a label and a test for values. A few values
// have a row each, many are put into classes of equal width.
function legendRows(task, variableIndex) {
  const variable = task.variables[variableIndex];
  const values = [...new Set(task.zones.map((zone) => valueIn(zone, variableIndex)))]
    .filter((value) => value !== null).sort((a, b) => a - b);
  const rowOf = (share, label, has) => ({ ...rampColour(share), label, has, size: 0, count: 0 });
  if (values.length <= mostSwatches) {
    return values.map((value, i) => rowOf(values.length === 1 ? 0.6 : i / (values.length - 1),
      shownValue(variable, value), (other) => other === value));
  }
  const low = values[0], high = values[values.length - 1];
  const edgeAt = (i) => low + (high - low) * i / mostSwatches;  // one class ends where the next begins, to the last bit
  return Array.from({ length: mostSwatches }, (unused, i) => {
    const from = edgeAt(i), to = edgeAt(i + 1), isLast = i === mostSwatches - 1;
    return rowOf(i / (mostSwatches - 1), `${shownValue(variable, from)} \u2013 ${shownValue(variable, to)}`,
      (value) => value >= from && (value < to || isLast));
  });
}

function valueIn(zone, variableIndex) {
  const pair = zone.values.find(([index]) => index === variableIndex);
  return pair ? pair[1] : null;
}

// ---- The view ----

const stage = byId("stage"), canvas = byId("canvas"), context = canvas.getContext("2d");
const view = { x: 0, y: 0, scale: 1 };  // the position in the middle, and pixels for a metre
const shown = { guidance: true, lines: true, points: true, names: true };
let width = 0, height = 0, redraws = 0, isWaiting = false;
let chosenField = null, chosenTask = null, variableIndex = 0, rows = [], colours = {};

function readColours() {
  const style = getComputedStyle(document.documentElement);
  for (const name of ["paper", "ink", "quiet", "field", "ground", "boundary", "chosen", "polygon", "guidance", "line",
                      "point", "halo"]) {
    colours[name] = style.getPropertyValue("--" + name).trim();
  }
}

function redraw() {
  if (isWaiting) return;
  isWaiting = true;
  requestAnimationFrame(() => { isWaiting = false; draw(); });
}

const screenX = (x) => (x - view.x) * view.scale + width / 2;
const screenY = (y) => (y - view.y) * view.scale + height / 2;

function isInView(box, margin = 12) {
  return screenX(box.right) > -margin && screenX(box.left) < width + margin &&
         screenY(box.bottom) > -margin && screenY(box.top) < height + margin;
}

function zoomTo(box) {
  if (isEmpty(box)) return;
  const least = 20;  // metres: a lone point is shown with what is around it
  const across = Math.max(box.right - box.left, least), down = Math.max(box.bottom - box.top, least);
  const covered = coveredByLegend();
  view.scale = limitScale(Math.min((width - covered - 2 * Math.min(70, width / 8)) / across,
    (height - 2 * Math.min(60, height / 8)) / down));
  view.x = (box.left + box.right - covered / view.scale) / 2;
  view.y = (box.top + box.bottom) / 2;
  redraw();
}

// How many pixels of the map the legend hides on the left: none where it stands below the map.
function coveredByLegend() {
  const legend = byId("legend");
  const isOver = !legend.hidden && getComputedStyle(legend).position === "absolute";
  return isOver ? Math.min(legend.offsetLeft + legend.offsetWidth, width / 2) : 0;
}

function limitScale(scale) {
  const extent = isEmpty(everything) ? 100 : Math.max(everything.right - everything.left, everything.bottom - everything.top, 20);
  return Math.min(Math.max(scale, Math.min(width, height) / extent / 8), 2000);
}

function zoomAt(factor, x = width / 2, y = height / 2) {
  const scale = limitScale(view.scale * factor);
  view.x += (x - width / 2) * (1 / view.scale - 1 / scale);
  view.y += (y - height / 2) * (1 / view.scale - 1 / scale);
  view.scale = scale;
  redraw();
}

function move(x, y) {
  view.x -= x / view.scale;
  view.y -= y / view.scale;
  redraw();
}

// ---- Drawing ----

// Leaves out positions that fall on the pixel of the one before, so that a far view of many fields stays quick.
function trace(path) {
  let lastX = NaN, lastY = NaN;
  for (let i = 0; i < path.length; i += 2) {
    const x = screenX(path[i]), y = screenY(path[i + 1]);
    if (i === 0) {
      context.moveTo(x, y);
    } else if (Math.abs(x - lastX) < 0.7 && Math.abs(y - lastY) < 0.7 && i + 2 < path.length) {
      continue;
    } else {
      context.lineTo(x, y);
    }
    lastX = x;
    lastY = y;
  }
}

function fillShape(shape, fill) {
  context.beginPath();
  for (const path of shape.paths) trace(path);
  context.fillStyle = fill;
  context.fill("nonzero");  // holes run the other way round
}

function strokeShape(shape, stroke, lineWidth, dashes = []) {
  context.beginPath();
  for (const path of shape.paths) trace(path);
  context.strokeStyle = stroke;
  context.lineWidth = lineWidth;
  context.setLineDash(dashes);
  context.stroke();
  context.setLineDash([]);
}

function hatch() {
  const tile = document.createElement("canvas");
  const side = 8 * pixelRatio();
  tile.width = tile.height = side;
  const pen = tile.getContext("2d");
  pen.fillStyle = colours.paper;
  pen.fillRect(0, 0, side, side);
  pen.strokeStyle = colours.quiet;
  pen.lineWidth = side / 7;
  pen.beginPath();
  for (const shift of [-side, 0, side]) {
    pen.moveTo(shift, side);
    pen.lineTo(shift + side, 0);
  }
  pen.stroke();
  const pattern = context.createPattern(tile, "repeat");
  pattern.setTransform(new DOMMatrix().scale(1 / pixelRatio()));
  return pattern;
}

// From afar an outline as wide as near by would hide what it goes round.
const isLarge = (shape) => Math.max(screenWidth(shape.box), (shape.box.bottom - shape.box.top) * view.scale) > 70;

function drawZones(drawn) {
  if (!chosenTask) return;
  const noValue = hatch();
  const areas = chosenTask.zones.flatMap((zone) => zone.areas.map((area) => [area, zone.row ? zone.row.css : noValue]))
    .filter(([area]) => isInView(area.box));
  for (const [area, fill] of areas) fillShape(area, fill);
  for (const [area] of areas) if (isLarge(area)) strokeShape(area, colours.halo, 3);
  for (const [area] of areas) if (isLarge(area)) strokeShape(area, colours.ink, 1);
  drawn.zones += areas.length;
}

function drawPivot(line) {
  const x = screenX(line.paths[0][0]), y = screenY(line.paths[0][1]);
  context.beginPath();
  context.arc(x, y, Math.max(pivotRadius(line) * view.scale, 0.1), 0, 2 * Math.PI);
  context.moveTo(x - 5, y);
  context.lineTo(x + 5, y);
  context.moveTo(x, y - 5);
  context.lineTo(x, y + 5);
}

// A point with a heading is the start of a line that goes on: an arrow tells where to.
function drawHeading(line) {
  const path = line.paths[0], x = screenX(path[0]), y = screenY(path[1]);
  const angle = (line.heading || 0) * Math.PI / 180, length = 34;
  const tipX = x + length * Math.sin(angle), tipY = y - length * Math.cos(angle);
  context.beginPath();
  context.moveTo(x, y);
  context.lineTo(tipX, tipY);
  for (const side of [-0.45, 0.45]) {
    context.moveTo(tipX, tipY);
    context.lineTo(tipX - 9 * Math.sin(angle + side), tipY + 9 * Math.cos(angle + side));
  }
}

function drawGuidance(line) {
  if (line.isPivot) {
    drawPivot(line);
  } else if (line.paths[0].length === 2) {
    drawHeading(line);
  } else {
    strokeShape(line, colours.halo, 4);
    strokeShape(line, colours.guidance, 2, [9, 4]);
    return;
  }
  for (const [colour, lineWidth] of [[colours.halo, 4], [colours.guidance, 2]]) {
    context.strokeStyle = colour;
    context.lineWidth = lineWidth;
    context.stroke();
  }
}

function drawLine(line) {
  strokeShape(line, colours.halo, 4.5);
  strokeShape(line, colours.line, 2.5);
}

// A form for each kind of mark, as the key below the map has them.
const marks = {
  warning: [[0, -7], [7, 6], [-7, 6]],
  other: [[0, -6], [6, 0], [0, 6], [-6, 0]],
};
function drawPoint(point) {
  const x = screenX(point.paths[0][0]), y = screenY(point.paths[0][1]);
  context.beginPath();
  for (const [dx, dy] of marks[point.type === "5" ? "warning" : "other"]) context.lineTo(x + dx, y + dy);
  context.closePath();
  context.strokeStyle = colours.halo;
  context.lineWidth = 4;
  context.stroke();
  context.fillStyle = colours.point;
  context.fill();
}

let labels = [];  // what is already on the map, so that no two lie on each other
function drawLabel(text, x, y, ink, halo, size = 14) {
  context.font = `600 ${size}px system-ui, sans-serif`;
  const across = context.measureText(text).width + 6, down = size + 4;
  const box = { left: x - across / 2, right: x + across / 2, top: y - down / 2, bottom: y + down / 2 };
  if (labels.some((other) => other.left < box.right && box.left < other.right && other.top < box.bottom && box.top < other.bottom)) return;
  labels.push(box);
  context.textAlign = "center";
  context.textBaseline = "middle";
  context.lineJoin = "round";
  context.strokeStyle = halo;
  context.lineWidth = 4;
  context.strokeText(text, x, y);
  context.fillStyle = ink;
  context.fillText(text, x, y);
}

const screenWidth = (box) => (box.right - box.left) * view.scale;

function drawLabels(visible) {
  labels = [];
  if (chosenTask) {
    for (const zone of chosenTask.zones) {
      if (!zone.row || zone.value === null) continue;
      for (const area of zone.areas) {
        if (!isInView(area.box) || screenWidth(area.box) < 70) continue;
        const text = shownValue(chosenTask.variables[variableIndex], zone.value);
        drawLabel(text, (screenX(area.box.left) + screenX(area.box.right)) / 2,
          (screenY(area.box.top) + screenY(area.box.bottom)) / 2,
          zone.row.isDark ? "#ffffff" : "#111111", zone.row.css, 13);
      }
    }
  }
  if (!shown.names) return;
  for (const field of visible) {
    if (screenWidth(field.box) < 60 && field !== chosenField) continue;
    const middle = (screenX(field.box.left) + screenX(field.box.right)) / 2;
    const top = Math.max(screenY(field.box.top) - 12, 14);
    drawLabel(field.name || field.id, middle, top, colours.ink, colours.halo);
  }
  if (!shown.points) return;
  for (const field of visible) {
    if (screenWidth(field.box) < 240) continue;
    for (const point of field.points) {
      if (point.name) drawLabel(point.name, screenX(point.paths[0][0]), screenY(point.paths[0][1]) + 17, colours.ink, colours.halo, 12);
    }
  }
}

function strokeBoundary(area, isChosen) {
  const lineWidth = isChosen ? 4 : isLarge(area) ? 2 : 1;
  if (isLarge(area)) strokeShape(area, colours.halo, lineWidth + 3);
  strokeShape(area, isChosen ? colours.chosen : colours.boundary, lineWidth);
}

function drawFields(visible, drawn) {
  for (const field of visible) {
    for (const area of field.areas) {
      if (area.isBoundary && isInView(area.box)) fillShape(area, colours.field);
    }
  }
  drawZones(drawn);
  for (const field of visible) {
    for (const area of field.areas) {
      if (!isInView(area.box)) continue;
      if (area.isBoundary) {
        strokeBoundary(area, field === chosenField);
        drawn.boundaries += 1;
      } else {
        strokeShape(area, colours.polygon, 1.5, [2, 3]);
        drawn.polygons += 1;
      }
      drawn.holes += area.paths.length - area.exteriors;
    }
  }
}

// Each kind of small thing with how it is drawn, over all fields.
const kinds = [
  ["guidance", drawGuidance],
  ["lines", drawLine],
  ["points", drawPoint],
];

function draw() {
  const ratio = pixelRatio();
  context.setTransform(ratio, 0, 0, ratio, 0, 0);
  context.clearRect(0, 0, width, height);
  context.lineJoin = "round";
  context.lineCap = "round";
  const drawn = { boundaries: 0, holes: 0, polygons: 0, zones: 0, guidance: 0, lines: 0, points: 0 };
  const visible = fields.filter((field) => !isEmpty(field.box) && isInView(field.box));
  drawFields(visible, drawn);
  for (const [kind, drawOne] of kinds) {
    if (!shown[kind]) continue;
    for (const field of visible) {
      for (const shape of field[kind]) {
        if (shape.paths[0].length === 0 || !isInView(shape.box, 40)) continue;
        drawOne(shape);
        drawn[kind] += 1;
      }
    }
  }
  drawLabels(visible);
  drawScale();
  canvas.dataset.drawn = JSON.stringify(drawn);
  canvas.dataset.redraws = String(++redraws);
}

function drawScale() {
  byId("scale").hidden = isEmpty(everything);
  const most = Math.min(width / 3, 160) / view.scale;
  const power = 10 ** Math.floor(Math.log10(most));
  const metres = power * [5, 2, 1].find((step) => step * power <= most);
  const text = metres >= 1000 ? `${(metres / 1000).toLocaleString("en")} km`
    : metres >= 1 ? `${metres} m` : `${Math.round(metres * 100)} cm`;
  byId("scale-text").textContent = text;
  byId("scale-bar").style.width = `${metres * view.scale}px`;
  byId("scale").setAttribute("aria-label", `Scale bar: ${text}`);
}

const pixelRatio = () => Math.min(window.devicePixelRatio || 1, 3);

function fit() {
  const isFirst = width === 0;
  const box = stage.getBoundingClientRect();
  if (box.width < 1 || box.height < 1) return;
  [width, height] = [box.width, box.height];
  canvas.width = Math.round(width * pixelRatio());
  canvas.height = Math.round(height * pixelRatio());
  if (isFirst) zoomTo(everything);
  draw();  // at once: the canvas has just been cleared
}

// ---- Choosing ----

function press(list, item, attribute) {
  for (const button of list.querySelectorAll(`[${attribute}=true]`)) button.setAttribute(attribute, "false");
  if (item) item.setAttribute(attribute, "true");
}

const say = (text) => { byId("spoken").textContent = text; };

function chooseField(field, isByMap = false) {
  chosenField = field;
  press(byId("fields"), field ? field.button : null, "aria-current");
  if (field && isByMap) {
    byId("fields").open = true;
    if (window.innerWidth > 800) field.button.scrollIntoView({ block: "nearest" });
  }
  if (field && !isByMap) zoomTo(field.box);
  if (field) say(`${field.name || field.id} ${isEmpty(field.box) ? "has no geometry" : "is shown"}`);
  redraw();
}

function chooseTask(task) {
  chosenTask = task === chosenTask ? null : task;
  press(byId("tasks"), chosenTask ? chosenTask.button : null, "aria-pressed");
  variableIndex = 0;
  showLegend();
  if (!chosenTask) return;
  const field = fields.find((other) => other.id === chosenTask.field);
  zoomTo(isEmpty(chosenTask.box) && field ? field.box : chosenTask.box);
  say(`${chosenTask.name || chosenTask.id}: ${counted(chosenTask.zones.length, "zone", "zones")}`);
}

// ---- Legend ----

const svg = (viewBox, ...shapes) => {
  const space = "http://www.w3.org/2000/svg";
  const image = document.createElementNS(space, "svg");
  image.setAttribute("viewBox", viewBox);
  image.setAttribute("aria-hidden", "true");
  for (const [tag, attributes] of shapes) {
    const shape = document.createElementNS(space, tag);
    for (const [name, value] of Object.entries(attributes)) shape.setAttribute(name, value);
    image.append(shape);
  }
  return image;
};

function swatch(row) {
  const box = { x: 0.5, y: 0.5, width: 25, height: 17 };
  if (row.css) return make("span", { class: "swatch" }, svg("0 0 26 18", ["rect", { ...box, fill: row.css }]));
  return make("span", { class: "swatch hatch" }, svg("0 0 26 18", ["rect", box], ["path", { d: "M3 17L17 1M11 17L25 1" }]));
}

// Sorts the zones into the rows, and adds up what each row covers.
function fillRows() {
  rows = chosenTask.variables.length ? legendRows(chosenTask, variableIndex) : [];
  const without = { css: null, label: chosenTask.variables.length ? "no value" : "no set value", size: 0, count: 0 };
  for (const zone of chosenTask.zones) {
    zone.value = valueIn(zone, variableIndex);
    zone.row = zone.value === null ? null : rows.find((row) => row.has(zone.value));
    const row = zone.row || without;
    for (const area of zone.areas) {
      row.size += sizeOf(area.paths);
      row.count += 1;
    }
  }
  return [...rows].reverse().concat(without.count ? [without] : []);
}

function showLegend() {
  byId("legend").hidden = !chosenTask;
  if (!chosenTask) {
    redraw();
    return;
  }
  byId("legend-title").replaceChildren(named(chosenTask.name, chosenTask.id));
  const choices = chosenTask.variables.map((variable, i) => make("option", { value: i }, variableTitle(variable)));
  byId("variable").replaceChildren();
  for (const choice of choices) byId("variable").append(choice);
  byId("variable").value = String(variableIndex);
  byId("variable-label").hidden = choices.length === 0;
  const unit = choices.length ? chosenTask.variables[variableIndex].unit : "";
  byId("legend-values").replaceChildren(...fillRows().map((row) => make("li", {}, swatch(row),
    make("span", {}, row.css && unit ? `${row.label} ${unit}` : row.label),
    make("span", {}, row.count ? hectares(row.size) : "not drawn"))));
  const notes = [];
  if (chosenTask.zones.length === 0) notes.push("This task has no treatment zones.");
  const undrawn = chosenTask.zones.filter((zone) => zone.areas.length === 0).length;
  if (undrawn) notes.push(`${counted(undrawn, "zone has", "zones have")} no outline.`);
  if (chosenTask.hasGrid) notes.push("Its grid is in a file of its own and not drawn.");
  byId("legend-note").textContent = notes.join(" ");
  byId("legend-note").hidden = notes.length === 0;
  redraw();
}

byId("variable").addEventListener("change", (event) => {
  variableIndex = Number(event.target.value);
  showLegend();
});

// The key of what is drawn beside the zones; each kind can be switched off.
const layerKeys = [
  ["guidance", "Guidance", ["path", { d: "M1 7H23", stroke: "var(--guidance)", "stroke-width": 2, "stroke-dasharray": "7 3", fill: "none" }]],
  ["lines", "Lines", ["path", { d: "M1 7H23", stroke: "var(--line)", "stroke-width": 2.5, fill: "none" }]],
  ["points", "Points", ["path", { d: "M7 1L13 7L7 13L1 7ZM19 1L24 12H14Z", fill: "var(--point)" }]],
  ["names", "Names", null],
];
function showLayers() {
  for (const [kind, title, symbol] of layerKeys) {
    const isThere = kind === "names" ? fields.some((field) => !isEmpty(field.box)) : fields.some((field) => field[kind].length > 0);
    if (!isThere) continue;
    const box = make("input", { type: "checkbox", checked: "" });
    box.addEventListener("change", () => { shown[kind] = box.checked; redraw(); });
    byId("layers").append(make("label", {}, box, symbol ? svg("0 0 24 14", symbol) : null, title));
  }
  byId("layers").hidden = byId("layers").children.length === 0;
}

// ---- Lists ----

function fieldButton(field) {
  const crop = field.crop ? make("bdi", {}, field.crop) : null;
  const detail = isEmpty(field.box) ? make("span", { class: "detail" }, "no geometry")
    : crop ? make("span", { class: "detail" }, crop) : null;
  field.button = make("button", { type: "button", class: "item", "aria-current": "false" }, named(field.name, field.id),
    make("span", { class: "figure" }, field.area ? hectares(field.area) : ""), detail);
  field.button.addEventListener("click", () => chooseField(field));
  return make("li", {}, field.button);
}

// Names by identifiers; of those that share one, the first.
function namesOf(items) {
  const names = new Map();
  for (const item of items) if (item.name && !names.has(item.id)) names.set(item.id, item.name);
  return names;
}
const growerNames = namesOf(data.growers), farmNames = namesOf(data.farms), fieldNames = namesOf(fields);

// Fields stand under their grower and farm, in the order in which these first occur.
function showFields() {
  const groups = new Map();
  for (const field of fields) {
    const key = JSON.stringify([field.grower, field.farm]);
    if (!groups.has(key)) groups.set(key, []);
    groups.get(key).push(field);
  }
  const list = byId("fields").querySelector(".items");
  for (const members of groups.values()) {
    const owners = [];
    if (members[0].grower) owners.push(growerNames.get(members[0].grower) || members[0].grower);
    if (members[0].farm) owners.push(farmNames.get(members[0].farm) || members[0].farm);
    const title = make("h3", {});
    owners.forEach((owner, i) => title.append(...(i ? [" \u203a "] : []), make("bdi", {}, owner)));
    if (owners.length === 0) title.append("Without grower and farm");
    if (groups.size === 1 && owners.length === 0) title.hidden = true;
    list.append(make("section", {}, title, make("ul", {}, members.map(fieldButton))));
  }
  for (const [title, all, key] of [["Growers without fields", data.growers, "grower"], ["Farms without fields", data.farms, "farm"]]) {
    const used = new Set(fields.map((field) => field[key]));
    const items = all.filter((item) => !used.has(item.id)).map((item) => make("li", { class: "item" }, named(item.name, item.id)));
    if (items.length) list.append(make("section", {}, make("h3", {}, title), make("ul", {}, items)));
  }
  finishList("fields", fields.length, "This set holds no fields.");
  const filter = byId("field-filter");
  filter.hidden = fields.length < 12;
  filter.addEventListener("input", () => filterFields(list, filter.value.trim().toLowerCase()));
}

function filterFields(list, wanted) {
  for (const field of fields) {
    field.button.parentElement.hidden = !`${field.name} ${field.id}`.toLowerCase().includes(wanted);
  }
  for (const section of list.querySelectorAll("section")) {
    section.hidden = wanted !== "" && !section.querySelector("li:not([hidden]) > button");
  }
}

function taskButton(task) {
  const parts = [];
  if (task.status) parts.push(task.status);
  if (task.zones.length) parts.push(counted(task.zones.length, "zone", "zones"));
  if (task.hasGrid) parts.push("grid");
  const detail = make("span", { class: "detail" });
  if (task.field) detail.append(make("bdi", {}, fieldNames.get(task.field) || task.field), parts.length ? " \u00b7 " : "");
  detail.append(parts.join(" \u00b7 "));
  task.button = make("button", { type: "button", class: "item", "aria-pressed": "false" }, named(task.name, task.id), detail);
  task.button.addEventListener("click", () => chooseTask(task));
  return make("li", {}, task.button);
}

function productItem(product) {
  const detail = [product.group, product.type].filter(Boolean);
  return make("li", { class: "item" }, named(product.name, product.id),
    make("span", { class: "figure" }, product.id),
    detail.length ? make("span", { class: "detail" }, make("bdi", {}, detail.join(" \u00b7 "))) : null);
}

function finishList(id, count, emptyText) {
  const section = byId(id);
  section.querySelector(".count").textContent = count ? count.toLocaleString("en") : "";
  if (count === 0) section.querySelector(".items").prepend(make("p", {}, emptyText));
}

function showLists() {
  showFields();
  byId("tasks").querySelector(".items").append(make("ul", {}, tasks.map(taskButton)));
  finishList("tasks", tasks.length, "This set holds no tasks.");
  byId("products").querySelector(".items").append(make("ul", {}, data.products.map(productItem)));
  finishList("products", data.products.length, "This set holds no products.");
}

function showHeader() {
  document.title = `${data.name} \u2013 map of a transfer set`;
  byId("set-name").textContent = data.name;
  const size = data.fields.reduce((sum, field) => sum + field.area, 0);
  byId("summary").textContent = [
    data.fields.length ? counted(data.fields.length, "field", "fields") + (size ? `, ${hectares(size)}` : "") : "no fields",
    data.tasks.length ? counted(data.tasks.length, "task", "tasks") : "no tasks",
    data.products.length ? counted(data.products.length, "product", "products") : "no products",
  ].join(" \u00b7 ");
  if (data.failures.length) {
    byId("failures-title").textContent =
      `${counted(data.failures.length, "document", "documents")} of ${data.documents} could not be read. What ${data.failures.length === 1 ? "it holds" : "they hold"} is missing here.`;
    for (const failure of data.failures) {
      byId("failures-list").append(make("li", {}, make("bdi", {}, failure.file),
        `, line ${failure.line}: ${failure.text}`, failure.item ? make("bdi", {}, ` (${failure.item})`) : null));
    }
    byId("failures").hidden = false;
  }
  canvas.setAttribute("aria-label", isEmpty(everything) ? "Empty map" : `Map of ${byId("summary").textContent}`);
  if (isEmpty(everything)) {
    byId("empty").textContent = fields.length ? "The fields of this set have no geometry." : "This set holds no fields.";
    byId("empty").hidden = false;
    byId("zoom").hidden = true;
    byId("north").style.display = "none";
  }
}

// ---- Moving about ----

const pointers = new Map();
let travelled = 0;

canvas.addEventListener("pointerdown", (event) => {
  if (event.pointerType === "mouse" && event.button !== 0) return;
  canvas.setPointerCapture(event.pointerId);
  if (pointers.size === 0) travelled = 0;
  pointers.set(event.pointerId, { x: event.offsetX, y: event.offsetY });
  canvas.classList.add("moving");
});
canvas.addEventListener("pointermove", (event) => {
  const before = pointers.get(event.pointerId);
  if (!before) return;
  const now = { x: event.offsetX, y: event.offsetY };
  travelled += Math.hypot(now.x - before.x, now.y - before.y);
  const others = [...pointers].filter(([id]) => id !== event.pointerId).map(([, place]) => place);
  if (others.length === 0) {
    move(now.x - before.x, now.y - before.y);
  } else {  // two fingers: the map follows their middle and their distance
    const other = others[0];
    const distance = (place) => Math.max(Math.hypot(place.x - other.x, place.y - other.y), 1);
    move((now.x - before.x) / 2, (now.y - before.y) / 2);
    zoomAt(distance(now) / distance(before), (now.x + other.x) / 2, (now.y + other.y) / 2);
  }
  pointers.set(event.pointerId, now);
});
for (const end of ["pointerup", "pointercancel"]) {
  canvas.addEventListener(end, (event) => {
    if (!pointers.delete(event.pointerId)) return;
    if (pointers.size === 0) canvas.classList.remove("moving");
    if (end === "pointerup" && pointers.size === 0 && travelled < 6) chooseAt(event.offsetX, event.offsetY);
  });
}
canvas.addEventListener("wheel", (event) => {
  event.preventDefault();
  const lines = event.deltaMode === 0 ? 1 : 30;
  zoomAt(Math.exp(-Math.max(-240, Math.min(240, event.deltaY * lines)) * 0.0022), event.offsetX, event.offsetY);
}, { passive: false });

function chooseAt(x, y) {
  const east = (x - width / 2) / view.scale + view.x, south = (y - height / 2) / view.scale + view.y;
  const found = fields.find((field) => field.areas.some((area) => area.isBoundary && holdsPoint(area.paths, east, south)));
  chooseField(found || null, true);
}

const keys = {
  ArrowLeft: () => move(60, 0),
  ArrowRight: () => move(-60, 0),
  ArrowUp: () => move(0, 60),
  ArrowDown: () => move(0, -60),
  "+": () => zoomAt(1.5),
  "=": () => zoomAt(1.5),
  "-": () => zoomAt(1 / 1.5),
  0: () => zoomTo(everything),
};
canvas.addEventListener("keydown", (event) => {
  const act = keys[event.key];
  if (!act || event.ctrlKey || event.metaKey || event.altKey) return;
  event.preventDefault();
  act();
});
byId("zoom-in").addEventListener("click", () => zoomAt(1.6));
byId("zoom-out").addEventListener("click", () => zoomAt(1 / 1.6));
byId("zoom-all").addEventListener("click", () => zoomTo(everything));

function repaint() {
  readColours();
  redraw();
}
matchMedia("(prefers-color-scheme: dark)").addEventListener("change", repaint);
for (const [event, isPrinting] of [["beforeprint", true], ["afterprint", false]]) {
  window.addEventListener(event, () => {  // on paper as in daylight
    document.documentElement.classList.toggle("printing", isPrinting);
    readColours();
    draw();
  });
}

readColours();
showHeader();
showLayers();
showLists();
new ResizeObserver(fit).observe(stage);
fit();

})();
