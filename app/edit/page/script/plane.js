// Points, and shapes as the process draws them: paths of [x, y, bulge], in millimetres with y to the north. A bulge is
// tan(sweep / 4) of the arc to the next point, positive counter-clockwise.

const FINEST = 1e3; // coordinates are kept to a thousandth of a millimetre
const SAG = 0.5; // mm, of a chord below its arc

export function tidy(number) {
  return Math.round(number * FINEST) / FINEST;
}

export function turnedPoint([x, y], [aboutX, aboutY], degrees) {
  const angle = (degrees * Math.PI) / 180;
  const cosine = Math.cos(angle);
  const sine = Math.sin(angle);
  return [aboutX + (x - aboutX) * cosine - (y - aboutY) * sine, aboutY + (x - aboutX) * sine + (y - aboutY) * cosine];
}

/** A point put into another of the file, which keeps its height or bulge. */
export function put(point, [x, y]) {
  return [tidy(x), tidy(y), ...point.slice(2)];
}

/** Pairs of neighbours with the bulge between them. */
function* edges({ points, closed }) {
  for (let i = 0; i + 1 < points.length; i += 1) yield [points[i], points[i + 1]];
  if (closed && points.length > 1) yield [points[points.length - 1], points[0]];
}

function arcCentre([startX, startY, bulge], [endX, endY]) {
  const away = (1 - bulge * bulge) / (4 * bulge);
  return [(startX + endX) / 2 - (endY - startY) * away, (startY + endY) / 2 + (endX - startX) * away];
}

/** The data of an svg path, about an origin: svg keeps seven digits only. */
export function pathData(shape, [originX, originY]) {
  const at = ([x, y]) => `${tidy(x - originX)} ${tidy(y - originY)}`;
  return shape.paths.filter(({ points }) => points.length > 1).map((path) => {
    const parts = [`M${at(path.points[0])}`];
    for (const [start, end] of edges(path)) {
      const bulge = start[2] ?? 0;
      if (bulge === 0) {
        parts.push(`L${at(end)}`);
        continue;
      }
      const radius = (Math.hypot(end[0] - start[0], end[1] - start[1]) * (1 + bulge * bulge)) / (4 * Math.abs(bulge));
      parts.push(`A${tidy(radius)} ${tidy(radius)} 0 ${Math.abs(bulge) > 1 ? 1 : 0} ${bulge > 0 ? 1 : 0} ${at(end)}`);
    }
    return parts.join("") + (path.closed ? "Z" : "");
  }).join("");
}

/** Chords that follow the shape's arcs. */
function* chords(shape) {
  for (const path of shape.paths) {
    for (const [start, end] of edges(path)) {
      const bulge = start[2] ?? 0;
      if (bulge === 0) {
        yield [start, end];
        continue;
      }
      const centre = arcCentre(start, end);
      const radius = Math.hypot(start[0] - centre[0], start[1] - centre[1]);
      const sweep = 4 * Math.atan(bulge);
      const step = 2 * Math.acos(Math.max(0, 1 - SAG / radius));
      const count = Math.min(360, Math.max(2, Math.ceil(Math.abs(sweep) / step)));
      let before = start;
      for (let i = 1; i <= count; i += 1) {
        const point = i === count ? end : turnedPoint(start, centre, (sweep * i * 180) / (Math.PI * count));
        yield [before, point];
        before = point;
      }
    }
  }
}

export function chordsOf(shape) {
  return [...chords(shape)];
}

export function boundsOf(shapes) {
  const bounds = { left: Infinity, bottom: Infinity, right: -Infinity, top: -Infinity };
  for (const shape of shapes) {
    for (const [start, end] of chords(shape)) {
      for (const [x, y] of [start, end]) {
        bounds.left = Math.min(bounds.left, x);
        bounds.right = Math.max(bounds.right, x);
        bounds.bottom = Math.min(bounds.bottom, y);
        bounds.top = Math.max(bounds.top, y);
      }
    }
  }
  return bounds.left <= bounds.right ? bounds : null;
}

/** How far apart two boxes lie at least. */
export function boxGap(one, other) {
  const across = Math.max(0, one.left - other.right, other.left - one.right);
  const along = Math.max(0, one.bottom - other.top, other.bottom - one.top);
  return Math.hypot(across, along);
}

function closestOnChord([x, y], [[startX, startY], [endX, endY]]) {
  const alongX = endX - startX;
  const alongY = endY - startY;
  const square = alongX * alongX + alongY * alongY;
  const share = square === 0 ? 0 : Math.min(1, Math.max(0, ((x - startX) * alongX + (y - startY) * alongY) / square));
  return [startX + share * alongX, startY + share * alongY];
}

function side([startX, startY], [endX, endY], [x, y]) {
  return (endX - startX) * (y - startY) - (endY - startY) * (x - startX);
}

function cross(one, other) {
  return side(...one, other[0]) * side(...one, other[1]) < 0 && side(...other, one[0]) * side(...other, one[1]) < 0;
}

/** Whether a point lies in what the chords go round. */
function isInside([x, y], around) {
  let inside = false;
  for (const [[startX, startY], [endX, endY]] of around) {
    if ((startY > y) !== (endY > y) && x < startX + ((y - startY) * (endX - startX)) / (endY - startY)) inside = !inside;
  }
  return inside;
}

/** The closest points of two outlines: {from, to, distance}; null where they overlap. */
export function closest(some, others) {
  if (some.length === 0 || others.length === 0) return null;
  if (isInside(some[0][0], others) || isInside(others[0][0], some)) return null;
  let best = { distance: Infinity };
  const consider = (from, to) => {
    const distance = Math.hypot(to[0] - from[0], to[1] - from[1]);
    if (distance < best.distance) best = { from, to, distance };
  };
  for (const one of some) {
    for (const other of others) {
      if (cross(one, other)) return null;
      for (const end of one) consider(end, closestOnChord(end, other));
      for (const end of other) consider(closestOnChord(end, one), end);
    }
  }
  return best;
}

export function movedShape(shape, dx, dy) {
  return { ...shape, paths: shape.paths.map((path) => (
    { ...path, points: path.points.map(([x, y, ...rest]) => [x + dx, y + dy, ...rest]) })) };
}
