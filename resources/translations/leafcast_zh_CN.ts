<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_GB">
<context>
    <name>FlashTmplFileCell</name>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Files of this kind</source>
        <translation>此类文件</translation>
    </message>
    <message>
        <source>No file</source>
        <translation>无文件</translation>
    </message>
</context>
<context>
    <name>FlashTmplSwitchCell</name>
    <message>
        <source>on</source>
        <translation>开</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
</context>
<context>
    <name>leafcast::AboutWindow</name>
    <message>
        <source>About Leafcast</source>
        <translation>关于 Leafcast</translation>
    </message>
    <message>
        <source>&lt;h2&gt;Leafcast %1&lt;/h2&gt;&lt;p&gt;Turns a PDF into a page-turning digital book.&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Leafcast %1&lt;/h2&gt;&lt;p&gt;把 PDF 变成可以翻页的电子书。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>What Leafcast is made with, and its licences</source>
        <translation>Leafcast 使用的组件及其许可证</translation>
    </message>
</context>
<context>
    <name>leafcast::ApplyItem</name>
    <message>
        <source>&amp;Apply Changes</source>
        <translation>应用更改(&amp;A)</translation>
    </message>
    <message>
        <source>Show the changes in the preview</source>
        <translation>在预览中显示更改</translation>
    </message>
</context>
<context>
    <name>leafcast::FlashTemplateOutlineDelegate</name>
    <message>
        <source>Can&apos;t be used: %1</source>
        <translation>无法使用：%1</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>(Untitled)</source>
        <translation>（无标题）</translation>
    </message>
    <message>
        <source>(Unknown)</source>
        <translation>（未知）</translation>
    </message>
    <message>
        <source>Reset of “%1”</source>
        <translation>重置“%1”</translation>
    </message>
    <message>
        <source>Reset of All Settings</source>
        <translation>重置所有设置</translation>
    </message>
</context>
<context>
    <name>leafcast::HowtoPreveiwWindowDelegate</name>
    <message>
        <source>Show on a Tablet</source>
        <translation>在平板电脑上显示</translation>
    </message>
    <message>
        <source>1. Connect the tablet to the network of this computer.</source>
        <translation>1. 将平板电脑连接到本机所在的网络。</translation>
    </message>
    <message>
        <source>2. Point its camera at the code, or open the address.</source>
        <translation>2. 用平板电脑的相机扫描二维码，或打开下面的地址。</translation>
    </message>
    <message>
        <source>3. After each change that you apply, load the page anew.</source>
        <translation>3. 每次应用更改后，请重新加载页面。</translation>
    </message>
    <message>
        <source>Network address</source>
        <translation>网络地址</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>This computer only: it is in no network.</source>
        <translation>仅限本机：本机未连接网络。</translation>
    </message>
    <message>
        <source>The preview server is starting …</source>
        <translation>正在启动预览服务器…</translation>
    </message>
    <message>
        <source>The preview server does not run: %1.</source>
        <translation>预览服务器未运行：%1。</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>已复制</translation>
    </message>
</context>
<context>
    <name>leafcast::ImportForm</name>
    <message>
        <source>Choose a PDF, or drop one here</source>
        <translation>选择 PDF，或将其拖放到此处</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>浏览(&amp;B)…</translation>
    </message>
    <message>
        <source>&amp;Images…</source>
        <translation>图片(&amp;I)…</translation>
    </message>
    <message>
        <source>Make the book from picture files instead</source>
        <translation>改用图片文件制作电子书</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>Look at the file in another program</source>
        <translation>用其他程序查看该文件</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>1-3,7</source>
        <translation>1-3,7</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>最佳</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>Import &amp;links</source>
        <translation>导入链接(&amp;L)</translation>
    </message>
    <message>
        <source>Import boo&amp;kmarks as table of contents</source>
        <translation>将书签导入为目录(&amp;K)</translation>
    </message>
    <message>
        <source>Page range</source>
        <translation>页面范围</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>导入进度</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>文件(&amp;F)：</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>密码(&amp;W)：</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>质量(&amp;Q)：</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>全部(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Range:</source>
        <translation>范围(&amp;R)：</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>页面：</translation>
    </message>
</context>
<context>
    <name>leafcast::ImportWindowDelegate</name>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Import PDF file does not exist.</source>
        <translation>要导入的 PDF 文件不存在。</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>正在导入…</translation>
    </message>
    <message>
        <source>Importing:%1/%2</source>
        <translation>正在导入：%1/%2</translation>
    </message>
    <message>
        <source>Images that become the pages: %1</source>
        <translation>将成为页面的图片：%1</translation>
    </message>
    <message>
        <source>The PDF is locked; type its password.</source>
        <translation>该 PDF 已加密，请输入密码。</translation>
    </message>
    <message>
        <source>This password does not open the PDF.</source>
        <translation>此密码无法打开该 PDF。</translation>
    </message>
    <message>
        <source>Choose a PDF</source>
        <translation>选择 PDF</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf *.PDF)</source>
        <translation>PDF 文档 (*.pdf *.PDF)</translation>
    </message>
    <message>
        <source>Choose the pages</source>
        <translation>选择页面</translation>
    </message>
    <message>
        <source>Images (*.jpg *.jpeg *.png *.gif)</source>
        <translation>图片 (*.jpg *.jpeg *.png *.gif)</translation>
    </message>
</context>
<context>
    <name>leafcast::Leafcast_for_iPad_MacAppDelegate</name>
    <message>
        <source>No Recent Files</source>
        <translation>没有最近使用的文件</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>清除列表(&amp;C)</translation>
    </message>
    <message>
        <source>Export Settings</source>
        <translation>导出设置</translation>
    </message>
    <message>
        <source>Settings (*.txt)</source>
        <translation>设置 (*.txt)</translation>
    </message>
    <message>
        <source>Import Settings</source>
        <translation>导入设置</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1，第 %2 行</translation>
    </message>
    <message>
        <source>This template can&apos;t be used.</source>
        <translation>无法使用此模板。</translation>
    </message>
    <message>
        <source>Pages: %1   Template: %2   Style: %3</source>
        <translation>页数：%1   模板：%2   样式：%3</translation>
    </message>
</context>
<context>
    <name>leafcast::MainWindow</name>
    <message>
        <source>Preview of the book</source>
        <translation>电子书预览</translation>
    </message>
    <message>
        <source>&amp;Import PDF…</source>
        <translation>导入 PDF(&amp;I)…</translation>
    </message>
    <message>
        <source>Make a book of a PDF or of pictures</source>
        <translation>用 PDF 或图片制作电子书</translation>
    </message>
    <message>
        <source>&amp;Publish…</source>
        <translation>发布(&amp;P)…</translation>
    </message>
    <message>
        <source>Write the book as a folder or as a package</source>
        <translation>将电子书输出为文件夹或程序包</translation>
    </message>
    <message>
        <source>&amp;Template…</source>
        <translation>模板(&amp;T)…</translation>
    </message>
    <message>
        <source>Choose how the book is read, and its style</source>
        <translation>选择阅读方式和样式</translation>
    </message>
    <message>
        <source>&amp;Export Settings…</source>
        <translation>导出设置(&amp;E)…</translation>
    </message>
    <message>
        <source>Save the values of all properties to a file</source>
        <translation>将所有属性的值保存到文件</translation>
    </message>
    <message>
        <source>I&amp;mport Settings…</source>
        <translation>导入设置(&amp;M)…</translation>
    </message>
    <message>
        <source>Take the values of properties from a file</source>
        <translation>从文件读取属性的值</translation>
    </message>
    <message>
        <source>Show on a &amp;Tablet…</source>
        <translation>在平板电脑上显示(&amp;T)…</translation>
    </message>
    <message>
        <source>How to see the book on a tablet of this network</source>
        <translation>如何在同一网络的平板电脑上查看电子书</translation>
    </message>
    <message>
        <source>Leafcast &amp;Guide</source>
        <translation>Leafcast 使用指南(&amp;G)</translation>
    </message>
    <message>
        <source>Open the guide</source>
        <translation>打开使用指南</translation>
    </message>
    <message>
        <source>&amp;About Leafcast</source>
        <translation>关于 Leafcast(&amp;A)</translation>
    </message>
    <message>
        <source>Version and licences</source>
        <translation>版本和许可证</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>最近打开(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Book</source>
        <translation>电子书(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>跟随桌面(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>浅色(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>深色(&amp;D)</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>工具栏</translation>
    </message>
</context>
<context>
    <name>leafcast::OutputForm</name>
    <message>
        <source>&amp;Choose…</source>
        <translation>选择(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>显示(&amp;S)</translation>
    </message>
    <message>
        <source>Show the folder in the file manager</source>
        <translation>在文件管理器中显示文件夹</translation>
    </message>
    <message>
        <source>Without extension, such as index</source>
        <translation>不含扩展名，例如 index</translation>
    </message>
    <message>
        <source>A folder with a page that any browser opens</source>
        <translation>文件夹，其中的网页可用任何浏览器打开</translation>
    </message>
    <message>
        <source>A package that opens by a double click</source>
        <translation>双击即可打开的程序包</translation>
    </message>
    <message>
        <source>&amp;More</source>
        <translation>更多(&amp;M)</translation>
    </message>
    <message>
        <source>What the page says to search engines, and where it is shared</source>
        <translation>网页提供给搜索引擎以及分享时显示的信息</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Publish</source>
        <translation>发布</translation>
    </message>
    <message>
        <source>Progress of the publication</source>
        <translation>发布进度</translation>
    </message>
    <message>
        <source>Publish &amp;as:</source>
        <translation>发布为(&amp;A)：</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>文件夹(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>标题(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>描述(&amp;D)：</translation>
    </message>
    <message>
        <source>&amp;Keywords:</source>
        <translation>关键词(&amp;K)：</translation>
    </message>
</context>
<context>
    <name>leafcast::OutputWindowDelegate</name>
    <message>
        <source>Publish</source>
        <translation>发布</translation>
    </message>
    <message>
        <source>Choose the folder of the book</source>
        <translation>选择电子书的文件夹</translation>
    </message>
    <message>
        <source>Choose folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>正在停止…</translation>
    </message>
    <message>
        <source>There is no book to publish.</source>
        <translation>没有可发布的电子书。</translation>
    </message>
    <message>
        <source>Publish there all the same?</source>
        <translation>仍要发布到该位置吗？</translation>
    </message>
    <message>
        <source>Publishing…</source>
        <translation>正在发布…</translation>
    </message>
    <message>
        <source>Reading the text of the pages: %1/%2</source>
        <translation>正在读取页面文字：%1/%2</translation>
    </message>
    <message>
        <source>Publishing was stopped; the book in %1 is not complete.</source>
        <translation>发布已停止；%1 中的电子书不完整。</translation>
    </message>
    <message>
        <source>Open the result files?</source>
        <translation>打开生成的文件吗？</translation>
    </message>
    <message>
        <source>Publish finished! Open the it?</source>
        <translation>发布完成！要打开吗？</translation>
    </message>
    <message>
        <source>Open it</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
</context>
<context>
    <name>leafcast::PageRangeCheck</name>
    <message>
        <source>Type the pages to import, such as 1-3,7.</source>
        <translation>请输入要导入的页面，例如 1-3,7。</translation>
    </message>
    <message>
        <source>There is a comma too many.</source>
        <translation>多了一个逗号。</translation>
    </message>
    <message>
        <source>“%1” is no page number; write pages as in 1-3,7.</source>
        <translation>“%1”不是页码；请按 1-3,7 的格式输入。</translation>
    </message>
    <message>
        <source>There is no page “%1”; pages are counted from 1.</source>
        <translation>没有第“%1”页；页码从 1 开始。</translation>
    </message>
    <message>
        <source>“%1” runs backwards; write the smaller number first.</source>
        <translation>“%1”的顺序颠倒了；请把较小的数字写在前面。</translation>
    </message>
    <message>
        <source>There is no page %1; the last one is %2.</source>
        <translation>没有第 %1 页；最后一页是第 %2 页。</translation>
    </message>
    <message>
        <source>“%1” names more pages than a book can have.</source>
        <translation>“%1”指定的页数超过了一本书的上限。</translation>
    </message>
</context>
<context>
    <name>leafcast::PreviewServer</name>
    <message>
        <source>it ended with status %1</source>
        <translation>它以状态 %1 结束</translation>
    </message>
</context>
<context>
    <name>leafcast::PropertyEdits</name>
    <message>
        <source>Change of “%1”</source>
        <translation>更改“%1”</translation>
    </message>
</context>
<context>
    <name>leafcast::PropertyHelp</name>
    <message>
        <source>Description of the selected setting</source>
        <translation>所选设置的说明</translation>
    </message>
    <message>
        <source>Select a setting to read what it does.</source>
        <translation>选择一项设置即可查看其作用。</translation>
    </message>
    <message>
        <source>This value can&apos;t be used: %1.</source>
        <translation>无法使用此值：%1。</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
</context>
<context>
    <name>leafcast::PropertyPanel</name>
    <message>
        <source>Find a setting</source>
        <translation>查找设置</translation>
    </message>
    <message>
        <source>Settings of the template</source>
        <translation>模板的设置</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Reset All to Defaults</source>
        <translation>全部恢复为默认值</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>全部重置</translation>
    </message>
    <message>
        <source>Find a Setting</source>
        <translation>查找设置</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>选择…</translation>
    </message>
    <message>
        <source>No File</source>
        <translation>无文件</translation>
    </message>
    <message>
        <source>Reset to Default</source>
        <translation>恢复默认值</translation>
    </message>
    <message>
        <source>No template is open.</source>
        <translation>没有打开的模板。</translation>
    </message>
    <message>
        <source>This template has no settings.</source>
        <translation>此模板没有设置。</translation>
    </message>
    <message>
        <source>No setting matches “%1”.</source>
        <translation>没有与“%1”匹配的设置。</translation>
    </message>
</context>
<context>
    <name>leafcast::QRCodeView</name>
    <message>
        <source>QR code of %1</source>
        <translation>%1 的二维码</translation>
    </message>
</context>
<context>
    <name>leafcast::SelectTemplateWindowDelegate</name>
    <message>
        <source>Template and Style</source>
        <translation>模板与样式</translation>
    </message>
    <message>
        <source>&amp;Template</source>
        <translation>模板(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Style</source>
        <translation>样式(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>刷新(&amp;R)</translation>
    </message>
    <message>
        <source>Look for templates that were added</source>
        <translation>查找新添加的模板</translation>
    </message>
</context>
<context>
    <name>leafcast::Sentences</name>
    <message>
        <source>it does not exist</source>
        <translation>它不存在</translation>
    </message>
    <message>
        <source>it may not be read</source>
        <translation>没有读取权限</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>它是一个文件夹</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>文件夹 %1 不存在</translation>
    </message>
    <message>
        <source>the disk is full or failing</source>
        <translation>磁盘已满或发生故障</translation>
    </message>
    <message>
        <source>its folder is read-only</source>
        <translation>所在文件夹是只读的</translation>
    </message>
    <message>
        <source>%1 can&apos;t be used: %2</source>
        <translation>无法使用 %1：%2</translation>
    </message>
    <message>
        <source>the page range names none of the %1 images</source>
        <translation>页面范围不包含 %1 张图片中的任何一张</translation>
    </message>
    <message>
        <source>the PDF %1 can&apos;t be opened: %2</source>
        <translation>无法打开 PDF %1：%2</translation>
    </message>
    <message>
        <source>%1 has no pages</source>
        <translation>%1 没有页面</translation>
    </message>
    <message>
        <source>the pages of %1 can&apos;t be imported</source>
        <translation>无法导入 %1 的页面</translation>
    </message>
    <message>
        <source>no page of %1 can be drawn; of the first: %2</source>
        <translation>%1 的所有页面都无法绘制；第一页的原因：%2</translation>
    </message>
    <message>
        <source>%1 of %2 could not be drawn: %3</source>
        <translation>%2中有 %1 页无法绘制：%3</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 页</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 页</translation>
    </message>
    <message>
        <source>the page range names more than %1 pages</source>
        <translation>页面范围超过了 %1 页</translation>
    </message>
    <message>
        <source>the document could not be opened</source>
        <translation>无法打开文档</translation>
    </message>
    <message>
        <source>the document has no such page</source>
        <translation>文档没有这一页</translation>
    </message>
    <message>
        <source>its picture can&apos;t be written: </source>
        <translation>无法写入它的图片：</translation>
    </message>
    <message>
        <source>it does not exist or may not be read</source>
        <translation>它不存在或没有读取权限</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>它是空的</translation>
    </message>
    <message>
        <source>it is not a PDF or damaged beyond repair</source>
        <translation>它不是 PDF，或已损坏且无法修复</translation>
    </message>
    <message>
        <source>it is locked and needs a password</source>
        <translation>它已加密，需要密码</translation>
    </message>
    <message>
        <source>the password is wrong</source>
        <translation>密码错误</translation>
    </message>
    <message>
        <source>it needs more memory than a PDF may use</source>
        <translation>它需要的内存超过了允许的上限</translation>
    </message>
    <message>
        <source>the work folder can&apos;t be written</source>
        <translation>无法写入工作文件夹</translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>退出状态 %1</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>信号 %1</translation>
    </message>
    <message>
        <source>it is not known how</source>
        <translation>原因不明</translation>
    </message>
    <message>
        <source>the PDF service could not be started: </source>
        <translation>无法启动 PDF 服务：</translation>
    </message>
    <message>
        <source>it was stopped</source>
        <translation>已被停止</translation>
    </message>
    <message>
        <source>the PDF service could not read it</source>
        <translation>PDF 服务无法读取它</translation>
    </message>
    <message>
        <source>the program leafcast-pdf is missing</source>
        <translation>缺少程序 leafcast-pdf</translation>
    </message>
    <message>
        <source>it took longer than a second</source>
        <translation>耗时超过一秒</translation>
    </message>
    <message>
        <source>it took longer than %1 seconds</source>
        <translation>耗时超过 %1 秒</translation>
    </message>
    <message>
        <source>the PDF service gave an answer that makes no sense</source>
        <translation>PDF 服务返回了无意义的结果</translation>
    </message>
    <message>
        <source>the PDF service crashed over it (%1)</source>
        <translation>PDF 服务在处理它时崩溃（%1）</translation>
    </message>
    <message>
        <source>it must be a name without a folder</source>
        <translation>必须是不含文件夹的名称</translation>
    </message>
    <message>
        <source>it starts with a dot, which would hide it</source>
        <translation>它以点开头，会被隐藏</translation>
    </message>
    <message>
        <source>it holds a control character</source>
        <translation>它包含控制字符</translation>
    </message>
    <message>
        <source>the folder %1 holds no book but other things (%2), which the book would lie among and may replace</source>
        <translation>文件夹 %1 中不是电子书，而是其他内容（%2）；电子书会与它们混在一起，并可能覆盖其中的文件</translation>
    </message>
    <message>
        <source>%1 is no book package and would be lost with all it holds%2</source>
        <translation>%1 不是电子书程序包，其中的全部内容都会丢失%2</translation>
    </message>
    <message>
        <source>the output folder %1 can&apos;t be made: %2 is no folder</source>
        <translation>无法创建输出文件夹 %1：%2 不是文件夹</translation>
    </message>
    <message>
        <source>the output folder %1 can&apos;t be written to: %2</source>
        <translation>无法写入输出文件夹 %1：%2</translation>
    </message>
    <message>
        <source>the name %1 has %2 bytes, and in %3 there is room for %4</source>
        <translation>名称 %1 有 %2 个字节，而 %3 中最多允许 %4 个字节</translation>
    </message>
    <message>
        <source>the book</source>
        <translation>电子书</translation>
    </message>
    <message>
        <source>the name can&apos;t be used: %1</source>
        <translation>无法使用该名称：%1</translation>
    </message>
    <message>
        <source>the output folder has no name</source>
        <translation>没有指定输出文件夹</translation>
    </message>
    <message>
        <source>the output folder %1 can&apos;t be made: there is no folder %2</source>
        <translation>无法创建输出文件夹 %1：文件夹 %2 不存在</translation>
    </message>
    <message>
        <source>the book could not be written: %1</source>
        <translation>无法写入电子书：%1</translation>
    </message>
    <message>
        <source>the output folder %1 can&apos;t be made</source>
        <translation>无法创建输出文件夹 %1</translation>
    </message>
    <message>
        <source>another program is writing into %1; try again when it is done</source>
        <translation>另一个程序正在写入 %1；请等它完成后再试</translation>
    </message>
    <message>
        <source>%1 could not be written</source>
        <translation>无法写入 %1</translation>
    </message>
    <message>
        <source>%1 and %2 more could not be written</source>
        <translation>无法写入 %1 以及另外 %2 个文件</translation>
    </message>
    <message>
        <source>there is no room for %1 in %2: it needs %3 more, and the disk has %4 left</source>
        <translation>%2 中没有足够的空间存放%1：还需要 %3，而磁盘只剩 %4</translation>
    </message>
    <message>
        <source>it must be a number</source>
        <translation>必须是数字</translation>
    </message>
    <message>
        <source>it must be a colour such as #1a2b3c</source>
        <translation>必须是类似 #1a2b3c 的颜色</translation>
    </message>
    <message>
        <source>it must be one of %1</source>
        <translation>必须是以下之一：%1</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>没有这个文件</translation>
    </message>
    <message>
        <source>it must be a file, not a folder or a device</source>
        <translation>必须是文件，不能是文件夹或设备</translation>
    </message>
    <message>
        <source>it must be yes or no</source>
        <translation>必须是 yes 或 no</translation>
    </message>
    <message>
        <source>a double quote</source>
        <translation>双引号</translation>
    </message>
    <message>
        <source>a backslash</source>
        <translation>反斜杠</translation>
    </message>
    <message>
        <source>a line break</source>
        <translation>换行符</translation>
    </message>
    <message>
        <source>its value holds %1</source>
        <translation>它的值包含%1</translation>
    </message>
    <message>
        <source>its value is empty and must be a number</source>
        <translation>它的值为空，必须是数字</translation>
    </message>
    <message>
        <source>its value &quot;%1&quot; is not a number</source>
        <translation>它的值“%1”不是数字</translation>
    </message>
    <message>
        <source>its key is not a name that a script can hold</source>
        <translation>它的键不是脚本可用的名称</translation>
    </message>
</context>
<context>
    <name>leafcast::TemplateText</name>
    <message>
        <source>Page</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>What the pages are and how they are shown.</source>
        <translation>页面的内容和显示方式。</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Title in the tool bar. Left empty, the title of the HTML page is shown.</source>
        <translation>工具栏中的标题。留空则显示 HTML 页面的标题。</translation>
    </message>
    <message>
        <source>Page width</source>
        <translation>页面宽度</translation>
    </message>
    <message>
        <source>Width of a page. It follows the imported document, and together with the height gives the shape of the pages where no picture tells it.</source>
        <translation>页面的宽度。它取自导入的文档，并与高度一起决定没有图片时页面的形状。</translation>
    </message>
    <message>
        <source>Page height</source>
        <translation>页面高度</translation>
    </message>
    <message>
        <source>Height of a page. It follows the imported document, and together with the width gives the shape of the pages where no picture tells it.</source>
        <translation>页面的高度。它取自导入的文档，并与宽度一起决定没有图片时页面的形状。</translation>
    </message>
    <message>
        <source>Pages side by side</source>
        <translation>并排页面</translation>
    </message>
    <message>
        <source>&quot;Double&quot; shows two facing pages, &quot;Single&quot; one page at a time. &quot;Auto&quot; takes what fits the window better.</source>
        <translation>“Double”显示左右两页，“Single”一次显示一页，“Auto”自动选择更适合窗口的方式。</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>封面</translation>
    </message>
    <message>
        <source>Where two pages are shown, the first page stands alone like the cover of a printed book. Switched off, pages 1 and 2 face each other.</source>
        <translation>显示双页时，第一页像印刷书的封面一样单独显示。关闭后，第 1 页和第 2 页并排显示。</translation>
    </message>
    <message>
        <source>First page stands alone</source>
        <translation>第一页单独显示</translation>
    </message>
    <message>
        <source>Hard cover</source>
        <translation>硬封面</translation>
    </message>
    <message>
        <source>The first and the last leaf turn stiffly like boards. Switched off, they bend like the other leaves.</source>
        <translation>第一张和最后一张像硬纸板一样翻动。关闭后，它们和其他页一样弯曲。</translation>
    </message>
    <message>
        <source>Covers are stiff</source>
        <translation>封面不弯曲</translation>
    </message>
    <message>
        <source>Reading direction</source>
        <translation>阅读方向</translation>
    </message>
    <message>
        <source>For books that are read from right to left: the first page is the rightmost one, and the left arrow goes forward.</source>
        <translation>用于从右向左阅读的书：第一页在最右边，左箭头向后翻页。</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>从右向左</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>Colour of the paper, seen around pages of another shape and until a page is loaded.</source>
        <translation>纸张的颜色，在形状不同的页面周围以及页面加载完成之前可见。</translation>
    </message>
    <message>
        <source>Page edges</source>
        <translation>书页边缘</translation>
    </message>
    <message>
        <source>Shows the edges of the pages before and after the open ones at the sides of the book. A click on them jumps.</source>
        <translation>在书的两侧显示当前页之前和之后各页的边缘。单击边缘可跳转。</translation>
    </message>
    <message>
        <source>Edges of the other pages</source>
        <translation>其他页的边缘</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>阴影</translation>
    </message>
    <message>
        <source>Draws a soft shadow around the pages.</source>
        <translation>在页面周围绘制柔和的阴影。</translation>
    </message>
    <message>
        <source>Pages cast a shadow</source>
        <translation>页面有阴影</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>What lies behind the pages.</source>
        <translation>页面后面的内容。</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Colour behind the pages. A background image lies over it.</source>
        <translation>页面后面的颜色。背景图片会覆盖在上面。</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Picture or texture behind the pages.</source>
        <translation>页面后面的图片或纹理。</translation>
    </message>
    <message>
        <source>Image position</source>
        <translation>图片位置</translation>
    </message>
    <message>
        <source>&quot;Tile&quot; repeats the background image, &quot;Fill&quot; stretches it over the whole window and keeps its shape, &quot;Center&quot; shows it once in the middle.</source>
        <translation>“Tile”平铺背景图片，“Fill”按比例放大填满整个窗口，“Center”在中间显示一次。</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>The bar above the pages with the title and the buttons.</source>
        <translation>页面上方带有标题和按钮的栏。</translation>
    </message>
    <message>
        <source>Shows the tool bar. Switched off, the buttons beside the pages remain.</source>
        <translation>显示工具栏。关闭后，页面两侧的按钮仍会保留。</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>可见</translation>
    </message>
    <message>
        <source>Colour of the tool bar, the panels and the buttons beside the pages.</source>
        <translation>工具栏、面板和页面两侧按钮的颜色。</translation>
    </message>
    <message>
        <source>Text colour</source>
        <translation>文字颜色</translation>
    </message>
    <message>
        <source>Colour of text and symbols on the tool bar, the panels and the buttons beside the pages.</source>
        <translation>工具栏、面板和页面两侧按钮上文字和图标的颜色。</translation>
    </message>
    <message>
        <source>Button that changes between one page at a time, two, and other pairs of pages.</source>
        <translation>在单页、双页和错开的双页之间切换的按钮。</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Button that fills the whole screen with the book, in browsers that can do so.</source>
        <translation>让书占满整个屏幕的按钮（需浏览器支持）。</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Button that prints the pages that the reader chooses.</source>
        <translation>打印读者所选页面的按钮。</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>导航</translation>
    </message>
    <message>
        <source>How readers find their way through the book.</source>
        <translation>读者如何在书中找到所需内容。</translation>
    </message>
    <message>
        <source>Turn buttons</source>
        <translation>翻页按钮</translation>
    </message>
    <message>
        <source>Buttons beside the pages that turn forward and back.</source>
        <translation>页面两侧用于前后翻页的按钮。</translation>
    </message>
    <message>
        <source>Page field</source>
        <translation>页码框</translation>
    </message>
    <message>
        <source>Field that shows where the reader is, and takes a page number or a page label to go there.</source>
        <translation>显示读者当前位置的输入框，输入页码或页面标签即可前往。</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>滑块</translation>
    </message>
    <message>
        <source>Slider below the pages that runs through the whole book.</source>
        <translation>页面下方贯穿全书的滑块。</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>缩略图</translation>
    </message>
    <message>
        <source>Panel with small pictures of all pages.</source>
        <translation>包含所有页面小图的面板。</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>目录</translation>
    </message>
    <message>
        <source>Panel with the document&apos;s bookmarks. A document without bookmarks has no such button.</source>
        <translation>显示文档书签的面板。没有书签的文档不会有此按钮。</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>键盘</translation>
    </message>
    <message>
        <source>The arrow keys, Page up, Page down, Home and End turn pages, and other keys search and zoom; the question mark shows them all.</source>
        <translation>方向键、Page Up、Page Down、Home 和 End 用于翻页，其他按键用于搜索和缩放；按问号可查看全部按键。</translation>
    </message>
    <message>
        <source>Keys work</source>
        <translation>按键有效</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>鼠标滚轮</translation>
    </message>
    <message>
        <source>The mouse wheel turns pages. Zooming with Ctrl and the wheel stays possible when it is switched off.</source>
        <translation>用鼠标滚轮翻页。关闭后仍可用 Ctrl 加滚轮缩放。</translation>
    </message>
    <message>
        <source>Wheel turns pages</source>
        <translation>滚轮翻页</translation>
    </message>
    <message>
        <source>Turn duration</source>
        <translation>翻页时长</translation>
    </message>
    <message>
        <source>How long a page takes to turn, in milliseconds. Pages of readers who ask their system for less motion fade instead.</source>
        <translation>翻一页所需的时间，单位为毫秒。如果读者在系统中设置了减少动态效果，页面则以淡入淡出切换。</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>上次阅读页</translation>
    </message>
    <message>
        <source>Opens the book again at the page that was read last in the same browser.</source>
        <translation>在同一浏览器中再次打开时，回到上次阅读的页面。</translation>
    </message>
    <message>
        <source>Is remembered</source>
        <translation>记住</translation>
    </message>
    <message>
        <source>Automatic turning</source>
        <translation>自动翻页</translation>
    </message>
    <message>
        <source>Button that makes the pages turn by themselves until it is pressed again.</source>
        <translation>让页面自动翻动的按钮，再按一次停止。</translation>
    </message>
    <message>
        <source>Turns every</source>
        <translation>翻页间隔</translation>
    </message>
    <message>
        <source>How long a page stays when pages turn by themselves, in seconds.</source>
        <translation>自动翻页时每页停留的时间，单位为秒。</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>声音</translation>
    </message>
    <message>
        <source>What is heard.</source>
        <translation>听到的内容。</translation>
    </message>
    <message>
        <source>A rustle of paper when a page turns, from the start. Browsers keep silent until the reader has touched the page.</source>
        <translation>翻页时发出纸张的沙沙声，从一开始就有。在读者触碰页面之前，浏览器会保持静音。</translation>
    </message>
    <message>
        <source>Pages rustle</source>
        <translation>翻页有声</translation>
    </message>
    <message>
        <source>Sound button</source>
        <translation>声音按钮</translation>
    </message>
    <message>
        <source>Button that switches the sound of turning pages on and off.</source>
        <translation>打开或关闭翻页声音的按钮。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Language of what is not the document.</source>
        <translation>文档以外内容的语言。</translation>
    </message>
    <message>
        <source>Language of buttons and messages; Chinese is simplified Chinese. &quot;Browser&quot; follows the language of the reader&apos;s browser.</source>
        <translation>按钮和消息的语言；Chinese 指简体中文。“Browser”跟随读者浏览器的语言。</translation>
    </message>
    <message>
        <source>Logo and links</source>
        <translation>徽标和链接</translation>
    </message>
    <message>
        <source>Your logo in the tool bar, and where links lead.</source>
        <translation>工具栏中的徽标，以及链接的去向。</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>徽标</translation>
    </message>
    <message>
        <source>Picture shown at the start of the tool bar, scaled to its height.</source>
        <translation>显示在工具栏开头的图片，按工具栏高度缩放。</translation>
    </message>
    <message>
        <source>Logo link</source>
        <translation>徽标链接</translation>
    </message>
    <message>
        <source>Web address that a click on the logo opens.</source>
        <translation>单击徽标时打开的网址。</translation>
    </message>
    <message>
        <source>Link colour</source>
        <translation>链接颜色</translation>
    </message>
    <message>
        <source>Colour that marks, on the pages, the link that the pointer or the keyboard is on.</source>
        <translation>在页面上标出指针或键盘所在链接的颜色。</translation>
    </message>
    <message>
        <source>Open web links in</source>
        <translation>网页链接打开方式</translation>
    </message>
    <message>
        <source>&quot;Blank&quot; opens web links and the logo link in a new window, &quot;Self&quot; in the window of the book.</source>
        <translation>“Blank”在新窗口中打开网页链接和徽标链接，“Self”在书的窗口中打开。</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>分享</translation>
    </message>
    <message>
        <source>How readers pass the book on.</source>
        <translation>读者如何把书分享给他人。</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>分享</translation>
    </message>
    <message>
        <source>Panel with the address of the page, and the lines that embed the book in another web page.</source>
        <translation>显示页面地址以及将书嵌入其他网页的代码的面板。</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Web address of the book for sharing and embedding. Left empty, the address at which it is read.</source>
        <translation>用于分享和嵌入的书的网址。留空则使用阅读时的地址。</translation>
    </message>
    <message>
        <source>Reading aids</source>
        <translation>阅读辅助</translation>
    </message>
    <message>
        <source>What helps readers with the text of the pages.</source>
        <translation>帮助读者阅读页面文字的功能。</translation>
    </message>
    <message>
        <source>Reader data</source>
        <translation>阅读数据</translation>
    </message>
    <message>
        <source>Gives the reader the page list, the links, the contents and the text of the document. Switched off, the pages are plain pictures, and only JPEG pictures of pages that count from 1 without a gap are found.</source>
        <translation>为读者提供文档的页面列表、链接、目录和文字。关闭后，页面只是图片，并且只能找到从 1 开始连续编号的 JPEG 图片。</translation>
    </message>
    <message>
        <source>Links and text</source>
        <translation>链接和文字</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Panel that finds words in the text of the document.</source>
        <translation>在文档文字中查找词语的面板。</translation>
    </message>
    <message>
        <source>Text view</source>
        <translation>文字视图</translation>
    </message>
    <message>
        <source>Button that shows the text of the document without its pages.</source>
        <translation>只显示文档文字而不显示页面的按钮。</translation>
    </message>
    <message>
        <source>Less motion</source>
        <translation>减少动态效果</translation>
    </message>
    <message>
        <source>Switch that lets pages fade instead of turning, on from the start for readers who ask their system for less motion.</source>
        <translation>让页面淡入淡出而不翻动的开关；对在系统中设置了减少动态效果的读者默认打开。</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Button that shows which keys do what. Where keys do nothing there is no such button.</source>
        <translation>显示各按键作用的按钮。按键无效时不会有此按钮。</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Buttons that enlarge the pages. Pinching and double tapping stay possible when it is switched off.</source>
        <translation>放大页面的按钮。关闭后仍可双指缩放或双击缩放。</translation>
    </message>
    <message>
        <source>For documents that are read from right to left: the next page comes from the left, and the left arrow goes forward.</source>
        <translation>用于从右向左阅读的文档：下一页从左边出现，左箭头前进。</translation>
    </message>
    <message>
        <source>Colour of the paper, seen until a page is loaded.</source>
        <translation>纸张的颜色，在页面加载完成之前可见。</translation>
    </message>
    <message>
        <source>Slides</source>
        <translation>幻灯片</translation>
    </message>
    <message>
        <source>How one page follows the other.</source>
        <translation>页面之间如何切换。</translation>
    </message>
    <message>
        <source>Change of pages</source>
        <translation>换页方式</translation>
    </message>
    <message>
        <source>&quot;Slide&quot; moves the next page in from the side, &quot;Fade&quot; lets it appear, &quot;None&quot; shows it at once.</source>
        <translation>“Slide”让下一页从侧面滑入，“Fade”让它淡入，“None”立即显示。</translation>
    </message>
    <message>
        <source>Dots</source>
        <translation>圆点</translation>
    </message>
    <message>
        <source>Dots below the pages, one for each; of many pages, those around the open one. A click on a dot goes there.</source>
        <translation>页面下方的圆点，每页一个；页数多时只显示当前页附近的。单击圆点即可前往。</translation>
    </message>
    <message>
        <source>Buttons beside the pages that go forward and back.</source>
        <translation>页面两侧用于前进和后退的按钮。</translation>
    </message>
    <message>
        <source>The keys of presenters work: arrows, space bar, Page up, Page down, Home and End change pages, a number and Enter go to that page, B shows a black screen; the question mark shows them all.</source>
        <translation>演示常用的按键有效：方向键、空格键、Page Up、Page Down、Home 和 End 换页，输入数字后按回车前往该页，B 键黑屏；按问号可查看全部按键。</translation>
    </message>
    <message>
        <source>The mouse wheel changes pages. Zooming with Ctrl and the wheel stays possible when it is switched off.</source>
        <translation>用鼠标滚轮换页。关闭后仍可用 Ctrl 加滚轮缩放。</translation>
    </message>
    <message>
        <source>How long a page takes to slide in, in milliseconds. Pages of readers who ask their system for less motion fade in instead.</source>
        <translation>页面滑入所需的时间，单位为毫秒。如果读者在系统中设置了减少动态效果，页面则淡入显示。</translation>
    </message>
    <message>
        <source>Slide show</source>
        <translation>幻灯片放映</translation>
    </message>
    <message>
        <source>Button that makes the pages change by themselves until it is pressed again.</source>
        <translation>让页面自动切换的按钮，再按一次停止。</translation>
    </message>
    <message>
        <source>Changes every</source>
        <translation>切换间隔</translation>
    </message>
    <message>
        <source>How long a page stays in the slide show, in seconds.</source>
        <translation>放映时每页停留的时间，单位为秒。</translation>
    </message>
    <message>
        <source>Switch that lets pages fade in instead of sliding, on from the start for readers who ask their system for less motion.</source>
        <translation>让页面淡入而不滑动的开关；对在系统中设置了减少动态效果的读者默认打开。</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>栏</translation>
    </message>
    <message>
        <source>How the pages lie below each other.</source>
        <translation>页面如何上下排列。</translation>
    </message>
    <message>
        <source>Reading width</source>
        <translation>阅读宽度</translation>
    </message>
    <message>
        <source>How wide a page is at most, in pixels of the screen, so that lines stay easy to read in a wide window. With 0 a page is as wide as the window.</source>
        <translation>页面的最大宽度，单位为屏幕像素，使文字在宽窗口中也便于阅读。设为 0 则页面与窗口同宽。</translation>
    </message>
    <message>
        <source>Shows the tool bar.</source>
        <translation>显示工具栏。</translation>
    </message>
    <message>
        <source>Colour of the tool bar and the panels.</source>
        <translation>工具栏和面板的颜色。</translation>
    </message>
    <message>
        <source>Colour of text and symbols on the tool bar and the panels.</source>
        <translation>工具栏和面板上文字和图标的颜色。</translation>
    </message>
    <message>
        <source>The arrow keys, the space bar, Page up, Page down, Home and End scroll wherever the focus is, and other keys search and zoom; the question mark shows them all. Switched off, only the browser&apos;s own keys are left.</source>
        <translation>方向键、空格键、Page Up、Page Down、Home 和 End 无论焦点在哪里都能滚动，其他按键用于搜索和缩放；按问号可查看全部按键。关闭后，只剩浏览器自身的按键。</translation>
    </message>
</context>
</TS>
