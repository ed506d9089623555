// SPDX-License-Identifier: MIT

const PAGES_WITHOUT_SCRIPT = [1, 2, 3, 4];

// `file:` beside 'self', because a page that is opened as a file has no self in some browsers.
const POLICY = [
  "default-src 'none'", "script-src 'self' file:", "style-src 'self' file:", "img-src 'self' file: data: blob:",
  "connect-src 'self'", "base-uri 'none'", "form-action 'none'",
].join('; ');

const plainPage = (number) => `  <img src="files/page/${number}.jpg" alt="Page ${number}">`;

/** The page of a template. Its placeholders follow the rules of docs/templates.md. */
export const page = ({ view, themeColor }) => `<!DOCTYPE html>
<!-- SPDX-License-Identifier: MIT -->
<html lang="en">
<head>
<meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="${POLICY}">
<meta name="viewport" content="width=device-width, initial-scale=1, viewport-fit=cover">
<title>\${index.title}</title>
<meta name="keywords" content="\${meta.keywords}">
<meta name="description" content="\${meta.description}">
<meta name="theme-color" content="${themeColor}">
<meta property="og:type" content="book">
<meta property="og:title" content="\${index.title}">
<meta property="og:description" content="\${meta.description}">
<meta property="og:image" content="files/page/1.jpg">
<meta property="book:tag" content="\${meta.keywords}">
<meta name="twitter:card" content="summary">
<meta name="twitter:title" content="\${index.title}">
<meta name="twitter:description" content="\${meta.description}">
<meta name="twitter:image" content="files/page/1.jpg">
<link rel="icon" type="image/png" href="style/icon.png">
<link rel="stylesheet" href="style/player.css">
<noscript><link rel="stylesheet" href="style/noscript.css"></noscript>
<script defer src="files/search/book.js"></script>
<script defer src="javascript/main.js"></script>
</head>
<body>
<div id="book" class="leafcast"${view ? ` data-view="${view}"` : ''}></div>
<noscript>
  <h1>\${index.title}</h1>
  <p>Turning pages needs JavaScript, which is switched off here. These are the first pages.</p>
${PAGES_WITHOUT_SCRIPT.map(plainPage).join('\n')}
</noscript>
</body>
</html>
`;
