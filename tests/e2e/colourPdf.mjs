// SPDX-License-Identifier: MIT

/** A PDF of pages { width, height } in points, each filled with its colour [red, green, blue] from 0 to 255. */
export function colourPdf(pages) {
  const objects = [
    '<< /Type /Catalog /Pages 2 0 R >>',
    `<< /Type /Pages /Count ${pages.length} /Kids [${pages.map((_, index) => `${3 + 2 * index} 0 R`).join(' ')}] >>`,
  ];
  for (const { width, height, colour } of pages) {
    const drawing = `${colour.map((each) => (each / 255).toFixed(4)).join(' ')} rg 0 0 ${width} ${height} re f`;
    objects.push(
      `<< /Type /Page /Parent 2 0 R /MediaBox [0 0 ${width} ${height}] /Resources << >> /Contents ${objects.length + 2} 0 R >>`,
      `<< /Length ${drawing.length} >>\nstream\n${drawing}\nendstream`,
    );
  }
  let text = '%PDF-1.4\n';
  const starts = objects.map((object, index) => {
    const start = text.length;
    text += `${index + 1} 0 obj\n${object}\nendobj\n`;
    return start;
  });
  const table = starts.map((start) => `${String(start).padStart(10, '0')} 00000 n \n`).join('');
  return `${text}xref\n0 ${objects.length + 1}\n0000000000 65535 f \n${table}` +
    `trailer\n<< /Size ${objects.length + 1} /Root 1 0 R >>\nstartxref\n${text.length}\n%%EOF\n`;
}
