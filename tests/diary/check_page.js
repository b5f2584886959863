// Looks at the diary's page as it is laid out and gives what is wrong with it, as texts. Evaluated
// by check_pages in the page of a headless browser. Expects `plots`, the number of plots to be seen.
(plots) => {
  const problems = [];
  const complain = (text) => problems.push(text);
  const root = document.documentElement;
  const isShown = (element) => element.checkVisibility();
  const shown = (selector, parent = document) => [...parent.querySelectorAll(selector)].filter(isShown);
  const name = (element) =>
      `${element.tagName.toLowerCase()}.${element.getAttribute('class')} "${element.textContent.slice(0, 30)}"`;

  if (root.scrollWidth > root.clientWidth) {
    complain(`the page is ${root.scrollWidth} wide and has room for ${root.clientWidth}`);
  }

  // Nothing typed by a person became markup.
  const foreign = document.querySelectorAll('script,img,iframe,object,embed,link,base,form,b b,u');
  for (const element of foreign) complain(`foreign ${name(element)}`);
  if (document.querySelectorAll('h1').length !== 1) complain('not one h1');
  for (const element of document.querySelectorAll('*')) {
    for (const attribute of element.attributes) {
      if (attribute.name.startsWith('on')) complain(`${name(element)} has ${attribute.name}`);
    }
  }
  const ids = [...document.querySelectorAll('[id]')].map((element) => element.id);
  if (new Set(ids).size !== ids.length) complain('an id is given twice');

  // Boxes of texts, and whether two of them share more than an edge.
  const overlap = (a, b) => Math.min(a.right, b.right) - Math.max(a.left, b.left) > 1 &&
      Math.min(a.bottom, b.bottom) - Math.max(a.top, b.top) > 1;
  const complainOfOverlaps = (boxes, where) => {
    boxes.sort((a, b) => a.box.top - b.box.top);
    for (let i = 0; i < boxes.length; ++i) {
      for (let j = i + 1; j < boxes.length && boxes[j].box.top < boxes[i].box.bottom; ++j) {
        if (overlap(boxes[i].box, boxes[j].box)) {
          complain(`"${boxes[i].text}" lies on "${boxes[j].text}" in ${where}`);
        }
      }
    }
  };

  const drawings = shown('svg');
  if (drawings.length !== plots) complain(`${drawings.length} plots, not ${plots}`);
  for (const drawing of drawings) {
    const frame = drawing.getBoundingClientRect();
    const where = drawing.id;
    if (frame.width < 250 || frame.height < 120) complain(`${where} is ${frame.width} by ${frame.height}`);
    const labels = (drawing.getAttribute('aria-labelledby') || '').split(' ');
    if (drawing.getAttribute('role') !== 'img' || labels.length !== 2 ||
        !labels.every((id) => (document.getElementById(id) || {textContent: ''}).textContent.length > 5)) {
      complain(`${where} has no title that is read`);
    }
    const boxes = [];
    for (const text of drawing.querySelectorAll('text')) {
      const box = text.getBoundingClientRect();
      boxes.push({box, text: text.textContent});
      if (box.left < frame.left - 1 || box.right > frame.right + 1 || box.top < frame.top - 1 ||
          box.bottom > frame.bottom + 1) {
        complain(`"${text.textContent}" leaves ${where}`);
      }
      if (box.height < 10) complain(`"${text.textContent}" in ${where} is ${box.height} high`);
    }
    complainOfOverlaps(boxes, where);
    const view = drawing.viewBox.baseVal;
    for (const path of drawing.querySelectorAll('path')) {
      const box = path.getBBox();
      if (!(box.x >= -1 && box.y >= -1 && box.x + box.width <= view.width + 1 &&
            box.y + box.height <= view.height + 1)) {
        complain(`a ${path.getAttribute('class')} leaves ${where}`);
      }
    }
  }

  // The texts of the page itself.
  const boxes = [];
  const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
  for (let node = walker.nextNode(); node; node = walker.nextNode()) {
    const parent = node.parentElement;
    if (!node.data.trim() || parent.closest('svg,legend,style') || !isShown(parent)) continue;
    const range = document.createRange();
    range.selectNodeContents(node);
    for (const box of range.getClientRects()) {
      // The height of a line is more than that of its letters.
      const inner = {left: box.left, right: box.right, top: box.top + 2, bottom: box.bottom - 2};
      boxes.push({box: inner, text: node.data.trim().slice(0, 30)});
      if (box.left < -1 || box.right > root.clientWidth + 1) complain(`"${node.data.slice(0, 30)}" leaves the page`);
    }
  }
  complainOfOverlaps(boxes, 'the page');
  return problems.slice(0, 20);
}
