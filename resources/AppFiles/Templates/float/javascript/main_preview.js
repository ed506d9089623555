// SPDX-License-Identifier: MIT
// The reader. The book's configuration, `var bookConfig = {...}`, is appended to this file when a
// book is written, so nothing here reads it before the document is complete.

(function () {
  'use strict';

  const TEXTS = {
    English: {
      code: 'en', page: 'Page {0}', position: 'Page {0} of {1}', positions: 'Pages {0} and {1} of {2}',
      previous: 'Previous page', next: 'Next page', fullScreen: 'Full screen', goTo: 'Go to page {0}',
      book: 'Pages of the book', empty: 'This book has no pages.', missing: 'There is no picture {0}.',
    },
    German: {
      code: 'de', page: 'Seite {0}', position: 'Seite {0} von {1}', positions: 'Seiten {0} und {1} von {2}',
      previous: 'Vorige Seite', next: 'Nächste Seite', fullScreen: 'Vollbild', goTo: 'Zu Seite {0}',
      book: 'Seiten des Buchs', empty: 'Dieses Buch hat keine Seiten.', missing: 'Es gibt kein Bild {0}.',
    },
    French: {
      code: 'fr', page: 'Page {0}', position: 'Page {0} sur {1}', positions: 'Pages {0} et {1} sur {2}',
      previous: 'Page précédente', next: 'Page suivante', fullScreen: 'Plein écran', goTo: 'Aller à la page {0}',
      book: 'Pages du livre', empty: 'Ce livre n’a pas de pages.', missing: 'Il n’y a pas d’image {0}.',
    },
  };

  const SWIPE_PIXELS = 48;
  // Two pages side by side may be this much smaller than one alone before one alone is better.
  const SMALLEST_SPREAD = 0.6;
  // A page this much wider than the first one is not put beside another.
  const WIDE_PAGE = 1.3;

  const element = (id) => document.getElementById(id);
  const isOn = (value) => /^(yes|true|show|enable)$/i.test(value);
  const number = (value) => (Number(value) > 0 ? Number(value) : 0);

  let config, pages, texts, views, place;

  function text(key, ...values) {
    return texts[key].replace(/\{(\d)\}/g, (_, index) => values[index]);
  }

  function chooseTexts() {
    const wanted = navigator.language.slice(0, 2);
    const ofBrowser = Object.values(TEXTS).find((candidate) => candidate.code === wanted);
    return TEXTS[config.languageSetting] || ofBrowser || TEXTS.English;
  }

  // Without the page list the names of the pictures can only be guessed.
  function readPages() {
    const data = window.bookData;
    if (isOn(config.readerData) && data && data.version === 2) return data.pages;
    const plain = (_, index) => ({
      label: String(index + 1), image: config.normalPath + (index + 1) + '.jpg', links: [],
    });
    return Array.from({ length: number(config.totalPageCount) }, plain);
  }

  // Width over height.
  function shape(page) {
    if (page.width && page.height) return page.width / page.height;
    const [width, height] = [number(config.largePageWidth), number(config.largePageHeight)];
    if (width && height) return width / height;
    return (number(config.pageWidth) || 3) / (number(config.pageHeight) || 4);
  }

  // What the book has to itself, less a margin that shadows need.
  function spaceForPages() {
    const { clientWidth, clientHeight } = element('book');
    return { width: Math.max(clientWidth - 24, 80), height: Math.max(clientHeight - 40, 80) };
  }

  function fittingHeight(shapes, space) {
    const shapeTogether = shapes.reduce((sum, each) => sum + each, 0);
    return Math.min(space.height, space.width / shapeTogether);
  }

  function showsTwoPages() {
    if (config.viewMode === 'Single') return false;
    if (config.viewMode === 'Double') return true;
    const [space, first] = [spaceForPages(), shape(pages[0])];
    return fittingHeight([first, first], space) >= SMALLEST_SPREAD * fittingHeight([first], space);
  }

  // Lists of the places that are seen together. A wide page breaks its own pair only, so that the
  // pages after it keep their side.
  function arrange() {
    const places = pages.map((_, index) => index + 1);
    if (!showsTwoPages()) return places.map((each) => [each]);
    const isWide = (each) => shape(pages[each - 1]) > WIDE_PAGE * shape(pages[0]);
    const result = [];
    for (let left = isOn(config.coverAlone) ? 0 : 1; left <= pages.length; left += 2) {
      const pair = [left, left + 1].filter((each) => each >= 1 && each <= pages.length);
      result.push(...(pair.some(isWide) ? pair.map((each) => [each]) : [pair]));
    }
    return result;
  }

  function create(name, properties, parent) {
    const node = Object.assign(document.createElement(name), properties);
    if (parent) parent.append(node);
    return node;
  }

  function addPlaceholder(page, node) {
    node.classList.add('missing');
    create('p', { className: 'label', textContent: page.label }, node);
    create('p', { className: 'reason', textContent: text('missing', page.image) }, node);
  }

  function addPicture(page, node) {
    if (page.width === 0) return addPlaceholder(page, node);
    const picture = create('img', { alt: '', draggable: false, src: page.image }, node);
    picture.addEventListener('error', () => {
      picture.remove();
      addPlaceholder(page, node);
    });
  }

  function openInWindow(anchor, url) {
    anchor.href = url;
    anchor.target = config.OpenWindow || '_blank';
    anchor.rel = 'noopener noreferrer';
  }

  function addLink(link, node) {
    const isWebLink = /^(https?:|mailto:|tel:)/i.test(link.url || '');
    if (!isWebLink && !link.place) return;
    const label = isWebLink ? link.url : text('goTo', pages[link.place - 1].label);
    const anchor = create('a', { className: 'link', title: label }, node);
    anchor.setAttribute('aria-label', label);
    const area = { left: link.x, top: link.y, width: link.width, height: link.height };
    for (const side in area) anchor.style[side] = area[side] * 100 + '%';
    if (isWebLink) return openInWindow(anchor, link.url);
    anchor.href = '#page/' + link.place;
    anchor.addEventListener('click', (event) => {
      event.preventDefault();
      show(link.place);
      element('book').focus({ preventScroll: true });
    });
  }

  function pageElement(page) {
    const node = create('section', { className: 'page' });
    node.setAttribute('role', 'group');
    node.setAttribute('aria-label', text('page', page.label));
    addPicture(page, node);
    page.links.forEach((link) => addLink(link, node));
    return node;
  }

  const currentView = () => views.findIndex((view) => view.includes(place));

  function resize() {
    const shapes = views[currentView()].map((each) => shape(pages[each - 1]));
    const height = fittingHeight(shapes, spaceForPages());
    [...element('book').children].forEach((node, index) => {
      node.style.height = Math.floor(height) + 'px';
      node.style.width = Math.floor(height * shapes[index]) + 'px';
    });
  }

  function tellPosition(view) {
    element('position').textContent = view.join('–') + ' / ' + pages.length;
    const spoken = view.length > 1 ? 'positions' : 'position';
    element('status').textContent = text(spoken, ...view, pages.length);
    element('previous').setAttribute('aria-disabled', view[0] === 1);
    element('next').setAttribute('aria-disabled', view[view.length - 1] === pages.length);
    try {
      history.replaceState(null, '', '#page/' + view[0]);
    } catch (error) {
      // Browsers refuse when pages turn very fast; the address catches up with the next turn.
    }
  }

  function fetchAhead(view) {
    for (const each of view || [])
      if (pages[each - 1].width !== 0) new Image().src = pages[each - 1].image;
  }

  function appear(direction) {
    const calm = matchMedia('(prefers-reduced-motion: reduce)').matches;
    const duration = calm ? 0 : number(config.turnDuration);
    if (!duration || !direction) return;
    const shift = direction * (isOn(config.rightToLeft) ? -32 : 32);
    const start = { opacity: 0.2, transform: 'translateX(' + shift + 'px)' };
    element('book').animate([start, { opacity: 1, transform: 'none' }], { duration, easing: 'ease-out' });
  }

  function show(target) {
    const direction = place ? Math.sign(target - place) : 0;
    place = Math.min(Math.max(target, 1), pages.length);
    const index = currentView();
    place = views[index][0];
    element('book').replaceChildren(...views[index].map((each) => pageElement(pages[each - 1])));
    resize();
    tellPosition(views[index]);
    appear(direction);
    fetchAhead(views[index + 1]);
    fetchAhead(views[index - 1]);
  }

  function turn(step) {
    const view = views[currentView() + step];
    if (view) show(view[0]);
  }

  function onKey(event) {
    if (event.altKey || event.ctrlKey || event.metaKey || event.shiftKey) return;
    const forward = isOn(config.rightToLeft) ? -1 : 1;
    const actions = {
      ArrowRight: () => turn(forward), ArrowLeft: () => turn(-forward),
      PageDown: () => turn(1), PageUp: () => turn(-1),
      Home: () => show(1), End: () => show(pages.length),
    };
    if (!actions[event.key]) return;
    event.preventDefault();
    actions[event.key]();
  }

  function watchSwipes(stage) {
    let start;
    stage.addEventListener('touchstart', (event) => {
      const zoomed = window.visualViewport && visualViewport.scale > 1.05;
      start = event.touches.length === 1 && !zoomed ? event.touches[0] : null;
    }, { passive: true });
    stage.addEventListener('touchend', (event) => {
      if (!start) return;
      const across = event.changedTouches[0].clientX - start.clientX;
      const down = event.changedTouches[0].clientY - start.clientY;
      if (Math.abs(across) < Math.max(SWIPE_PIXELS, 1.5 * Math.abs(down))) return;
      turn((across < 0) === !isOn(config.rightToLeft) ? 1 : -1);
    });
  }

  function onResize() {
    views = arrange();
    if (views[currentView()].length === element('book').children.length) resize();
    else show(place);
  }

  function nameButton(id, label, onClick) {
    const button = element(id);
    button.title = label;
    button.setAttribute('aria-label', label);
    button.addEventListener('click', onClick);
    button.hidden = false;
  }

  function toggleFullScreen() {
    if (document.fullscreenElement) document.exitFullscreen();
    else document.documentElement.requestFullscreen();
  }

  function prepareLogo() {
    if (!config.LogoFile) return;
    const [logo, image] = [element('logo'), element('logoImage')];
    image.addEventListener('error', () => { logo.hidden = true; });
    image.src = config.LogoFile;
    image.alt = config.appLogoLinkURL || 'Logo';
    if (config.appLogoLinkURL) openInWindow(logo, config.appLogoLinkURL);
    logo.hidden = false;
  }

  function prepareToolBar() {
    element('toolbar').hidden = !isOn(config.toolBarVisible);
    element('title').textContent = config.bookTitle || document.title;
    prepareLogo();
    if (isOn(config.fullScreenButtonVisible) && document.fullscreenEnabled)
      nameButton('fullScreen', text('fullScreen'), toggleFullScreen);
  }

  function prepareLook() {
    for (const name of ['backgroundColor', 'toolBarColor', 'toolBarTextColor', 'linkColor'])
      if (config[name]) document.documentElement.style.setProperty('--' + name, config[name]);
    if (config.bgImageURL) document.body.style.backgroundImage = 'url("' + config.bgImageURL + '")';
    document.body.dataset.background = config.bgImagePosition;
    document.documentElement.lang = texts.code;
    element('stage').dir = isOn(config.rightToLeft) ? 'rtl' : 'ltr';
    element('stage').classList.toggle('shadow', isOn(config.pageShadow));
    element('book').setAttribute('aria-label', text('book'));
  }

  function start() {
    config = window.bookConfig || {};
    texts = chooseTexts();
    pages = readPages();
    prepareLook();
    prepareToolBar();
    if (!pages.length) {
      element('status').textContent = text('empty');
      element('status').className = 'notice';
      return;
    }
    nameButton('previous', text('previous'), () => turn(-1));
    nameButton('next', text('next'), () => turn(1));
    if (isOn(config.keyboardControl)) document.addEventListener('keydown', onKey);
    watchSwipes(element('stage'));
    views = arrange();
    show(Number((/^#page\/(\d+)$/.exec(location.hash) || [])[1]) || 1);
    window.addEventListener('resize', onResize);
  }

  document.addEventListener('DOMContentLoaded', start);
})();

// MD5 (RFC 1321) over lists of 32-bit little-endian words, which the code appended to this file
// calls by these names. `chrsz` is the number of bits taken from each character.
var chrsz = 8;

function str2binl(text) {
  const words = [];
  for (let bit = 0; bit < text.length * chrsz; bit += chrsz)
    words[bit >> 5] |= (text.charCodeAt(bit / chrsz) & ((1 << chrsz) - 1)) << bit % 32;
  return words;
}

function binl2hex(words) {
  const hexByte = (byte) => (byte & 0xff).toString(16).padStart(2, '0');
  return Array.from(words, (word) => [0, 8, 16, 24].map((shift) => hexByte(word >>> shift)).join('')).join('');
}

function core_hx(words, bits) {
  const shifts = [[7, 12, 17, 22], [5, 9, 14, 20], [4, 11, 16, 23], [6, 10, 15, 21]];
  const mixers = [
    (b, c, d) => [(b & c) | (~b & d), 1, 0], (b, c, d) => [(b & d) | (c & ~d), 5, 1],
    (b, c, d) => [b ^ c ^ d, 3, 5], (b, c, d) => [c ^ (b | ~d), 7, 0],
  ];
  const end = (((bits + 64) >>> 9) << 4) + 14;
  const message = Array.from({ length: end + 2 }, (_, index) => words[index] | 0);
  message[bits >> 5] |= 0x80 << bits % 32;
  message[end] = bits;
  let state = [0x67452301, 0xefcdab89 | 0, 0x98badcfe | 0, 0x10325476];
  for (let block = 0; block < message.length; block += 16) {
    let [a, b, c, d] = state;
    for (let step = 0; step < 64; step++) {
      const [mixed, factor, offset] = mixers[step >> 4](b, c, d);
      const constant = Math.floor(Math.abs(Math.sin(step + 1)) * 4294967296);
      const sum = (a + mixed + constant + message[block + ((factor * step + offset) & 15)]) | 0;
      const shift = shifts[step >> 4][step & 3];
      [a, d, c, b] = [d, c, b, (b + ((sum << shift) | (sum >>> (32 - shift)))) | 0];
    }
    state = [a, b, c, d].map((value, index) => (value + state[index]) | 0);
  }
  return state;
}
