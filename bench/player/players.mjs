// SPDX-License-Identifier: MIT
// How each player is put on a page and driven. All but `page` are expressions that the browser evaluates:
//   ready   whether its first page can be seen      place   the first page in sight, from 1
//   next, previous   begin a turn                   idle    whether nothing moves
const page = (head, body) => `<!DOCTYPE html><meta charset="utf-8"><link rel="icon" href="data:,">
<style>html,body{margin:0;height:100%;overflow:hidden;background:#555}#book{width:96vw;height:94vh;margin:3vh auto}</style>
${head}<body>${body}`;
const script = (path) => `<script src="/modules/${path}"></script>`;
const pictures = (book) => JSON.stringify(Array.from({ length: book.pageCount }, (_, at) => `/ours/files/page/${at + 1}.jpg`));
const isLoaded = (image) => `(image => image?.complete && image.naturalWidth > 0)(${image})`;
const press = (key) => `document.body.dispatchEvent(new KeyboardEvent('keydown', { key: '${key}', bubbles: true }))`;

const drawn = `[...document.querySelectorAll('.leafcast canvas.side, .stage canvas.side')].map(({ dataset }) => Number(dataset.drawn))`;
const ours = {
  name: 'ours',
  address: '/ours/index.html',
  ready: `${drawn}.some(Boolean)`,
  next: press('ArrowRight'),
  previous: press('ArrowLeft'),
  idle: `document.querySelector('canvas.air').hidden`,
  place: `Math.min(...${drawn}.filter(Boolean))`,
};

const pageFlip = (kind, load) => ({
  page: (book) => page(script('page-flip/dist/js/page-flip.browser.js'), `<div id="book"></div><script>
    const pictures = ${pictures(book)}, state = { now: 'read' };
    const flip = new St.PageFlip(document.getElementById('book'), { width: ${book.width / 2}, height: ${book.height / 2},
      size: 'stretch', minWidth: 200, maxWidth: 2000, minHeight: 200, maxHeight: 2000, showCover: true, flippingTime: 800 });
    flip.on('changeState', ({ data }) => { state.now = data; });
    ${load}</script>`),
  name: `page-flip, ${kind}`,
  next: `flip.flipNext('bottom')`,
  previous: `flip.flipPrev('bottom')`,
  idle: `state.now === 'read'`,
  place: 'flip.getCurrentPageIndex() + 1',
});

const pageFlipCanvas = {
  ...pageFlip('canvas', 'flip.loadFromImages(pictures);'),
  ready: 'flip.pages?.getPage(0).isLoad',
};

const pageFlipHtml = {
  ...pageFlip('HTML', `document.getElementById('book').innerHTML = pictures.map((picture) =>
      '<div class="leaf"><img style="width:100%;height:100%" src="' + picture + '"></div>').join('');
    flip.loadFromHTML(document.querySelectorAll('.leaf'));`),
  ready: isLoaded(`document.querySelector('.leaf img')`),
};

const turning = `jQuery('#book').data()`;
const turnJs = {
  name: 'turn.js',
  // Pages are added shortly before they are seen, as its manual advises for long books.
  page: (book) => page(script('jquery/dist/jquery.min.js') + '<script>window.require = () => jQuery</script>' + script('turn.js/index.js'), `<div id="book"></div><script>
    const pictures = ${pictures(book)}, element = jQuery('#book'), double = innerWidth > innerHeight;
    const shape = ${book.width / book.height} * (double ? 2 : 1);
    const height = Math.floor(Math.min(innerHeight * 0.94, innerWidth * 0.96 / shape));
    const leaf = (picture) => '<div><img style="width:100%;height:100%" src="' + picture + '"></div>';
    const add = (first, last) => { for (let number = first; number <= last; number++)
      if (!element.data().pageObjs[number]) element.turn('addPage',
        jQuery(leaf(pictures[number - 1])), number); };
    element.html(pictures.slice(0, 6).map(leaf).join(''));
    element.turn({ width: Math.floor(height * shape), height, pages: pictures.length, display: double ? 'double' : 'single',
      duration: 800, when: { turning: (event, number) => add(...element.turn('range', number)) } });</script>`),
  ready: `${turning}.done && ${isLoaded(`document.querySelector('#book img')`)}`,
  next: `jQuery('#book').turn('next')`,
  previous: `jQuery('#book').turn('previous')`,
  idle: `${turning}.pageMv.length === 0 && !Object.values(${turning}.pages).some((each) => each.data().effect)`,
  place: `jQuery('#book').turn('view').find(Boolean)`,
};

const flipbookVue = {
  name: 'flipbook-vue',
  page: (book) => page(script('vue/dist/vue.min.js') + script('flipbook-vue/dist/flipbook.min.js'), `<div id="book">
    <flipbook ref="flipbook" style="width:96vw;height:94vh" :pages="pages" :flip-duration="800"></flipbook></div><script>
    const view = new Vue({ el: '#book', data: { pages: ${
  pictures(book).replace('[', '[null, ')} } });</script>`),
  ready: isLoaded(`document.querySelector('img.page')`),
  next: 'view.$refs.flipbook.flipRight()',
  previous: 'view.$refs.flipbook.flipLeft()',
  idle: '!view.$refs.flipbook.flip.direction',
  place: 'view.$refs.flipbook.page',
};

const addressed = (player) => ({ address: `/${player.name.replace(/\W+/g, '-')}.html`, ...player });

export const PLAYERS = [ours, pageFlipCanvas, pageFlipHtml, turnJs, flipbookVue].map(addressed);
