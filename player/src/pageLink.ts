// SPDX-License-Identifier: MIT
import { hashOf } from './address.ts';
import { create } from './dom.ts';

/**
 * A link to a page of the book. It can be opened in another window too where the address is the
 * book's own; elsewhere the address names another page, so that the link has none.
 */
export function makePageLink(place: number, ownsAddress: boolean, follow: () => void): HTMLAnchorElement {
  const link = create('a', ownsAddress ? { href: hashOf(place) } : { role: 'link', tabIndex: 0 });
  link.addEventListener('click', (event) => {
    if (ownsAddress && (event.ctrlKey || event.metaKey || event.shiftKey)) return;
    event.preventDefault();
    follow();
  });
  if (!ownsAddress) link.addEventListener('keydown', ({ key }) => key === 'Enter' && follow());
  return link;
}
