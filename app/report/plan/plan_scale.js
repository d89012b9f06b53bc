/** Metres: a round length of at most 120 pixels, for a scale bar. */
export function roundLength(pixelsPerMetre) {
  const most = 120 / pixelsPerMetre;
  const power = 10 ** Math.floor(Math.log10(most));
  return Number((power * [5, 2, 1].find((factor) => factor * power <= most)).toPrecision(1));
}
