// SPDX-License-Identifier: MIT
import { readFileSync } from 'node:fs';

// Chromium, Firefox and WebKit take 'self' for the files beside a page that is opened as a file.
// Objects are the pictures of a page without script; a style attribute that a script sets is no inline style.
const POLICY = [
  "default-src 'none'", "script-src 'self'", "style-src 'self'", "img-src 'self' data: blob:", "object-src 'self'",
  "connect-src 'self'", "base-uri 'none'", "form-action 'none'",
].join('; ');

const PAGES_WITHOUT_SCRIPT = [1, 2, 3, 4];

/** Where there is no such picture an object shows what is in it: another one, or nothing. */
const plainPage = (number) => {
  const object = (type, extension, inside = '') =>
    `<object type="image/${type}" data="files/page/${number}.${extension}" title="Page ${number}">${inside}</object>`;
  return object('jpeg', 'jpg', object('png', 'png'));
};

function addressOf(svgFile) {
  const drawing = readFileSync(new URL(svgFile, import.meta.url), 'utf8')
    .replace(/<\?.*?\?>|<!--.*?-->/gs, '').replace(/\s+/g, ' ').replace(/> </g, '><').trim().replaceAll('"', "'");
  return 'data:image/svg+xml,' + drawing.replace(/[%#<>]/g, encodeURIComponent);
}

const ICON = addressOf('../../resources/images/leafcast-small.svg');

/**
 * The page of a template. Its placeholders follow the rules of docs/templates.md. Values may come with
 * quotes that nobody escaped: in the title they do no harm, and what can end at them stands last in the head.
 */
export const page = ({ view, themeColor }) => `<!DOCTYPE html>
<!-- SPDX-License-Identifier: MIT -->
<html lang="en">
<head>
<meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="${POLICY}">
<meta name="viewport" content="width=device-width, initial-scale=1, viewport-fit=cover">
<title>\${index.title}</title>
<meta name="theme-color" content="${themeColor}">
<link rel="icon" href="${ICON}">
<link rel="stylesheet" href="style/player.css">
<noscript><link rel="stylesheet" href="style/noscript.css"></noscript>
<script defer src="files/search/book.js"></script>
<script defer src="javascript/main.js"></script>
<meta property="og:type" content="book">
<meta property="og:image" content="files/page/1.jpg">
<meta name="twitter:card" content="summary">
<meta name="twitter:image" content="files/page/1.jpg">
<meta name="description" content="\${meta.description}">
<meta name="keywords" content="\${meta.keywords}">
<meta property="og:title" content="\${index.title}">
<meta property="og:description" content="\${meta.description}">
<meta property="book:tag" content="\${meta.keywords}">
<meta name="twitter:title" content="\${index.title}">
<meta name="twitter:description" content="\${meta.description}">
</head>
<body class="leafcast-page">
<div id="book" class="leafcast"${view ? ` data-view="${view}"` : ''}></div>
<noscript>
<h1>\${index.title}</h1>
<p>Turning the pages needs JavaScript, which is switched off here. The pages are pictures in the folder files/page.</p>
${PAGES_WITHOUT_SCRIPT.map(plainPage).join('\n')}
</noscript>
</body>
</html>
`;
